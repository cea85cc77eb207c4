#include "PropertyListSamples.h"

using namespace velmar;

static const std::string head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n";

static std::string inPlist(const std::string &contents) {
    return head + contents + "\n</plist>";
}

TEST(PropertyListXml, ReadsEveryFormOfAValue) {
    using Data = PropertyList::Data;
    using Date = PropertyList::Date;
    const double infinity = std::numeric_limits<double>::infinity();
    const std::pair<const char *, PropertyList> cases[] = {
        {"<true/>", true},
        {"<false />", false},
        {"<integer> +0x1f\n</integer>", 31},
        {"<integer>-0X10</integer>", -16},
        {"<integer>-9223372036854775808</integer>", std::numeric_limits<std::int64_t>::min()},
        {"<integer>18446744073709551615</integer>", std::numeric_limits<std::uint64_t>::max()},
        {"<real> -1.5e3 </real>", -1500.0},
        {"<real>1e-400</real>", 0.0},
        {"<real>NaN</real>", std::nan("")},
        {"<real>-infinity</real>", -infinity},
        {"<date>2001-01-01T00:00:01Z</date>", Date{1}},
        {"<date>2000-02-29T00:00:00Z</date>", Date{-307 * 86400.0}},
        {"<date>0000-01-01T00:00:00Z</date>", Date{-63145526400.0}},
        {"<data/>", Data{}},
        {"<data>\n\tAQ ID\n\t/w==\n</data>",
         Data{{std::byte{1}, std::byte{2}, std::byte{3}, std::byte{255}}}},
        {"<string/>", ""},
        {"<string> \n </string>", " \n "},
        {"<string>a\r\nb\rc&#13;</string>", "a\nb\nc\r"},
        {"<string>&lt;&gt;&amp;amp;&quot;&apos;&#65;&#x20AC;&#x1F600;</string>", "<>&amp;\"'A€\U0001F600"},
        {"<string> <![CDATA[<b>&amp;]]\r\n]]> <!-- not -- this --><?nor this?>b</string>", " <b>&amp;]]\n b"},
        {"<!-- <a> --><?pi?><array><!----><string>x</string> <array/></array>",
         PropertyList::Array{"x", PropertyList::Array{}}},
    };
    for (const auto &[text, value] : cases) {
        ASSERT_NO_THROW(EXPECT_EQ(PropertyList::read(inPlist(text)), value) << text) << text;
    }
}

TEST(PropertyListXml, ReadsWhatMayStandAroundTheRoot) {
    for (const std::string text : {
             "<plist><true/></plist>",
             "\n \t<plist version='0.9' ><true/></plist >\r\n<!-- end --> <?end?>\n",
             "\xEF\xBB\xBF<?xml version=\"1.0\" encoding='utf-8' standalone='yes' ?><plist><true/></plist>",
             "<?xml version=\"1.1\" encoding=\"US-ASCII\"?><?pi [?><!-- < -->"
             "<!DOCTYPE plist PUBLIC \"a>[\" 'b>['><!-- --><plist><true/></plist>",
         }) {
        ASSERT_NO_THROW(EXPECT_EQ(PropertyList::read(text), PropertyList(true))) << text;
    }
}

TEST(PropertyListXml, RefusesWhatIsNoPropertyListWithTheLine) {
    struct {
        std::string text;
        std::size_t line;
        std::string fragment;
    } const cases[] = {
        {"", 1, "the file is empty"},
        {"{ a = b; }", 1, "neither an XML nor a binary"},
        {"\xFF\xFE<\0", 1, "UTF-16"},
        {inPlist("<string>\xC3(</string>"), 3, "not UTF-8"},
        {inPlist("<string>" + std::string(200, 'x') + "\xF4\x90\x80\x80</string>"), 3, "not UTF-8"},
        {inPlist(std::string("<true/>\0", 8)), 3, "U+0000"},
        {inPlist("<string>\x1B</string>"), 3, "U+001B"},
        {"<?xml version='1.0' encoding='ISO-8859-1'?><plist/>", 1, "'ISO-8859-1' is not supported"},
        {"<?xml version='2.0'?><plist/>", 1, "version '2.0'"},
        {"\n<?xml version='1.0'?><?xml version='1.0'?><plist/>", 2, "not at the beginning"},
        {"<?xml version=1?><plist/>", 1, "an attribute is not of the form"},
        {"\n<!DOCTYPE html><html/>", 2, "'html' and not 'plist'"},
        {"<!DOCTYPE plist [<!ENTITY a 'b'>]><plist/>", 1, "declarations inside"},
        {"<!DOCTYPE plist PUBLIC 'a", 1, "the document type does not end"},
        {"<dict/>", 1, "<dict> and not <plist>"},
        {"<plist version='2.0'><true/></plist>", 1, "'2.0' of property lists"},
        {inPlist(""), 2, "has no value"},
        {inPlist("<true/>\n<true/>"), 4, "more than one value"},
        {inPlist("<true/>") + "\n<plist/>", 5, "after the end"},
        {inPlist("\n<foo/>"), 4, "<foo> is not known"},
        {inPlist("<array>\n</dict>"), 4, "<array> is ended by </dict>"},
        {inPlist("<array>\nx</array>"), 4, "text between the elements"},
        {inPlist("<array><![CDATA[x]]></array>"), 3, "begins no element"},
        {inPlist("</array>"), 3, "</array> ends no element"},
        {inPlist("<dict>\n<string>a</string></dict>"), 4, "<string> in a dictionary has no key"},
        {inPlist("<dict><key>a</key>\n<key>b</key></dict>"), 4, "the key 'a' has no value"},
        {inPlist("<string x='y'/>"), 3, "<string> has an attribute"},
        {inPlist("<string>a\n<b/></string>"), 4, "<string> contains another tag"},
        {inPlist("<string>a</key>"), 3, "<string> is ended by </key>"},
        {inPlist("<string>&nbsp;</string>"), 3, "no known reference"},
        {inPlist("<string>&#xD800;</string>"), 3, "'&#xD800;' is no character"},
        {inPlist("<string>&#x110000;</string>"), 3, "is no character"},
        {inPlist("<true>x</true>"), 3, "<true> is not empty"},
        {inPlist("<integer>1.0</integer>"), 3, "'1.0' is not an integer"},
        {inPlist("<integer>0x</integer>"), 3, "is not an integer"},
        {inPlist("<integer>18446744073709551616</integer>"), 3, "is not an integer"},
        {inPlist("<integer>-9223372036854775809</integer>"), 3, "is not an integer"},
        {inPlist("<real>1,5</real>"), 3, "'1,5' is not a real"},
        {inPlist("<real>1e999</real>"), 3, "is not a real"},
        {inPlist("<real>nan(1)</real>"), 3, "is not a real"},
        {inPlist("<date>2023-02-29T00:00:00Z</date>"), 3, "is not a date"},
        {inPlist("<date>2024-01-01T24:00:00Z</date>"), 3, "is not a date"},
        {inPlist("<date>2024-01-01T00:00:00</date>"), 3, "is not a date"},
        {inPlist("<data>A</data>"), 3, "is not data"},
        {inPlist("<data>AQ==AQ==</data>"), 3, "is not data"},
        {inPlist("<data>AR==</data>"), 3, "is not data"},
        {inPlist("<!-- \n"), 3, "comment does not end"},
        {inPlist("<string><![CDATA["), 3, "CDATA section does not end"},
    };
    for (const auto &[text, line, fragment] : cases) {
        const PropertyListError error = errorOfReading(text);
        EXPECT_EQ(error.line(), line) << text;
        EXPECT_NE(error.errorDescription().find(fragment), std::string::npos) << text << "\n"
                                                                              << error.errorDescription();
    }
    EXPECT_EQ(errorOfReading(inPlist("<foo/>")).errorDescription(),
              "The property list is not valid at line 3: the element <foo> is not known.");
}

TEST(PropertyListXml, RefusesEveryStrictPrefix) {
    const std::string whole =
        "<?xml version=\"1.0\"?><!DOCTYPE plist PUBLIC \"a\" \"b\"><!-- c --><plist version=\"1.0\"><dict>"
        "<key>k</key><string>a&amp;<![CDATA[b]]></string><key>l</key><array><true/>"
        "<integer>1</integer><data>AQ==</data></array></dict></plist>";
    EXPECT_NO_THROW(static_cast<void>(PropertyList::read(whole)));
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(errorOfReading(whole.substr(0, length)).errorDescription().empty());
    }
}

TEST(PropertyListXml, RefusesDepthWithoutGoingThere) {
    for (const std::string element : {"<array>", "<dict><key>k</key>"}) {
        std::string text = "<plist>\n";
        for (int level = 0; level < 100000; ++level) {
            text += element;
        }
        const PropertyListError error = errorOfReading(text);
        EXPECT_NE(error.errorDescription().find("at line 2: the values are nested more than 256 deep"),
                  std::string::npos);
        EXPECT_EQ(error.offset(), 8 + 256 * element.size());
    }
}

TEST(PropertyListXml, BoundsTheNumberOfValues) {
    const auto values = [](std::size_t count) {
        std::string text = "<plist><array>\n";
        for (std::size_t value = 1; value < count; ++value) {
            text += "<true/>";
        }
        return text + "</array></plist>";
    };
    EXPECT_EQ(PropertyList::read(values(PropertyList::maximumValues)).array()->size(),
              PropertyList::maximumValues - 1);
    EXPECT_EQ(errorOfReading(values(PropertyList::maximumValues + 1)).errorDescription(),
              "The property list is not valid at line 2: there are more than 1000000 values.");
}

TEST(PropertyListXml, RefusesALargeFileThatWasCutOffBeforeItIsRead) {
    // The unknown element would be reported if the file were built.
    const std::string text = "<plist>\n<array><foo/>" + std::string(9 << 20, ' ') + "\n<true/>";
    EXPECT_EQ(errorOfReading(text).errorDescription(),
              "The property list is not valid at line 3: the text ends before the property list does.");
    EXPECT_NE(errorOfReading(text + "</array></plist>\n<!-- end -->").errorDescription().find("<foo>"),
              std::string::npos);
}

TEST(PropertyListXml, KeepsPlacesAndLinesOfKeysAndValues) {
    std::string text = "<plist>\n<dict>\n";
    for (int line = 3; line < 5000; line += 2) {
        text += "<key>" + std::to_string(line) + "</key>\n<string>" +
                std::string(static_cast<std::size_t>(line % 97), 'x') + "</string>\n";
    }
    text += "</dict>\n</plist>\n";
    const auto document = PropertyListDocument::read(text);
    const LineIndex lines = document.lines();
    EXPECT_EQ(document.form(), PropertyListDocument::Form::Xml);
    EXPECT_EQ(lines.lineOf(document.root().offset()), 2U);
    for (const auto &entry : document.root().entries()) {
        const std::string key(entry.key.text());
        EXPECT_EQ(text.substr(entry.keyOffset, 5 + key.size()), "<key>" + key);
        EXPECT_EQ(std::to_string(lines.lineOf(entry.keyOffset)), key);
        EXPECT_EQ(lines.lineOf(entry.value.offset()), lines.lineOf(entry.keyOffset) + 1);
    }
}

TEST(PropertyListXml, NotesKeysGivenTwiceAndTakesTheLast) {
    const auto item = [](const std::string &key, int value) {
        return "<key>" + key + "</key>\n<integer>" + std::to_string(value) + "</integer>\n";
    };
    std::string many = "<dict>\n";
    for (int key = 0; key < 100; ++key) {
        many += item(std::to_string(key), 0);
    }
    many += item("7", 1) + item("7", 2) + "</dict>";
    const std::string text = "<plist><dict>\n" + item("a", 1) + "<key>Items</key><array><true/>" + many +
                             "<dict>" + item("b", 1) + item("b", 2) + "</dict></array>" + item("c", 1) +
                             item("a", 2) + "</dict></plist>";
    const auto document = PropertyListDocument::read(text);
    ASSERT_EQ(document.duplicates().size(), 4U);
    const std::pair<std::string, std::string> expected[] = {
        {"7", "Items.1"}, {"7", "Items.1"}, {"b", "Items.2"}, {"a", ""}};
    for (std::size_t index = 0; index < 4; ++index) {
        EXPECT_EQ(document.duplicates()[index].key, expected[index].first);
        EXPECT_EQ(document.duplicates()[index].path, expected[index].second);
    }
    EXPECT_EQ(document.lines().lineOf(document.duplicates()[0].offset), 205U);
    const PropertyListValue &root = document.root();
    ASSERT_EQ(root.entries().size(), 3U);
    EXPECT_EQ(root.find("a")->integer(), 2);
    const PropertyListValue &large = root.find("Items")->elements()[1];
    EXPECT_EQ(large.entries().size(), 100U);
    EXPECT_EQ(large.find("7")->integer(), 2);
}

TEST(PropertyListXml, BoundsWhatItNotesOfKeysGivenTwice) {
    std::string text = "<plist><dict><key>" + std::string(100000, 'k') + "</key><dict>";
    for (int count = 0; count < 20000; ++count) {
        text += "<key>a</key><true/>";
    }
    text += "</dict></dict></plist>";
    EXPECT_EQ(PropertyListDocument::read(text).duplicates().size(), 10U);
}

TEST(PropertyListXml, WritesTheUsualHeadAndIndentsByTabs) {
    PropertyList::Dictionary dictionary;
    dictionary.set("Items", PropertyList::Array{"a & b", PropertyList::Data{{std::byte{1}}}});
    dictionary.set("Empty", PropertyList());
    EXPECT_EQ(
        PropertyList(dictionary).xml(),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
        "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
        "<plist version=\"1.0\">\n<dict>\n\t<key>Items</key>\n\t<array>\n\t\t<string>a &amp; b</string>\n"
        "\t\t<data>\n\t\tAQ==\n\t\t</data>\n\t</array>\n\t<key>Empty</key>\n\t<dict/>\n</dict>\n</plist>\n");
}
