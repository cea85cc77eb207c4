#include <Configuration/APIRequestItem.h>
#include <Configuration/Configuration.h>
#include <Foundation/PropertyList.h>
#include <Network/APIRequest/RequestBody.h>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace velmar {
namespace {

// Returns the encoded body of a request, or the text of the error.
std::string encoded(const std::string &body, Format format) {
    const PropertyList file = PropertyList::read(fmt::format(
        "<plist version=\"1.0\"><dict><key>Slides</key><array><dict><key>Containers</key><array/></dict>"
        "</array><key>APIRequests</key><dict><key>Models</key><dict>"
        "<key>Base</key><dict><key>Body</key>{}</dict>"
        "<key>Child</key><dict><key>ParentRequest</key><string>Base</string></dict>"
        "</dict></dict></dict></plist>",
        body));
    const auto configuration = Configuration::decode(file);
    const auto &request = configuration->_apiRequests()._models().models().at("Child");
    try {
        return encodedBody(*request._body.rawValue(), format, request._body.codingPath());
    } catch (const InvalidXMLBody &error) {
        return error.errorDescription();
    }
}

std::string dictionary(const std::string &keys) {
    return "<dict>" + keys + "</dict>";
}
std::string entry(const std::string &key, const std::string &value) {
    return "<key>" + key + "</key>" + value;
}

TEST(RequestBody, IsWrittenInTheFormatOfTheServer) {
    const std::string list = "<array><string>a</string><array><integer>1</integer><true/></array></array>";
    const std::string values = entry("text", "<string>&lt;é&amp;\"</string>") +
                               entry("whole", "<real>2</real>") + entry("list", list) +
                               entry("none", dictionary(""));
    const std::string refused = "Invalid XML body for request at 'APIRequests.Models.Base.Body'.";
    const struct {
        std::string body, json, xml;
    } cases[] = {
        {dictionary(entry("computer", dictionary(values))),
         R"({"computer":{"list":["a",[1,true]],"none":{},"text":"<é&\"","whole":2.0}})",
         "<computer><list>a</list><list><element>1</element><element>true</element></list><none/>"
         "<text>&lt;é&amp;\"</text><whole>2.0</whole></computer>"},
        {dictionary(entry("ids", "<array><integer>1</integer></array>")), R"({"ids":[1]})",
         "<ids><element>1</element></ids>"},
        {dictionary(entry("größe", "<string>${USER_NAME}</string>")), R"({"größe":"${USER_NAME}"})",
         "<größe>${USER_NAME}</größe>"},
        {"<integer>7</integer>", "7", refused},
        {"<string>a</string>", "\"a\"", refused},
        {"<array/>", "[]", refused},
        {dictionary(""), "{}", refused},
        {dictionary(entry("a", "<true/>") + entry("b", "<true/>")), R"({"a":true,"b":true})", refused},
        {dictionary(entry("two words", "<true/>")), R"({"two words":true})", refused},
        {dictionary(entry("a", dictionary(entry("1", "<true/>")))), R"({"a":{"1":true}})", refused},
    };
    for (const auto &[body, json, xml] : cases) {
        EXPECT_EQ(encoded(body, encodingFormat(MDMApi::airwatch)), json);
        EXPECT_EQ(encoded(body, encodingFormat(MDMApi::jamfPro)), xml);
    }
}

// Values of variables may contain any bytes.
TEST(RequestBody, SurvivesTextsThatAreNone) {
    const auto body = [](const char *text) {
        return BodyItem{BodyItem::Dictionary{{"a", {std::string(text)}}}};
    };
    EXPECT_EQ(encodedBody(body("\xFFx"), Format::json, "P"), "{\"a\":\"\uFFFDx\"}");
    EXPECT_THROW(static_cast<void>(encodedBody(body("\xFFx"), Format::xml, "P")), InvalidXMLBody);
    EXPECT_THROW(static_cast<void>(encodedBody(body("\x01"), Format::xml, "P")), InvalidXMLBody);
}

} // namespace
} // namespace velmar
