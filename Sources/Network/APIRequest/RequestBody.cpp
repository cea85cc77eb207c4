#include <Network/APIRequest/RequestBody.h>

#include <Configuration/BodyItem.h>
#include <Foundation/NumberText.h>
#include <Foundation/RegularExpression.h>
#include <Foundation/UnicodeText.h>

#include <fmt/format.h>
#include <nlohmann/json.hpp>
#include <pugixml.hpp>

#include <cstdint>
#include <sstream>
#include <type_traits>
#include <variant>

namespace velmar {

namespace {

nlohmann::json jsonValue(const BodyItem &body) {
    return std::visit(
        [](const auto &value) -> nlohmann::json {
            using Value = std::remove_cvref_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, BodyItem::Array>) {
                nlohmann::json array = nlohmann::json::array();
                for (const BodyItem &element : value) {
                    array.push_back(jsonValue(element));
                }
                return array;
            } else if constexpr (std::is_same_v<Value, BodyItem::Dictionary>) {
                nlohmann::json object = nlohmann::json::object();
                for (const auto &[key, element] : value) {
                    object.emplace(key, jsonValue(element));
                }
                return object;
            } else {
                return value;
            }
        },
        body.value);
}

// Extensible Markup Language 1.0 (fifth edition), [5] Name, without the colon, which is for namespaces.
bool isNameOfXml(const std::string &text) {
    static constexpr std::string_view start =
        "A-Z_a-z\\x{C0}-\\x{D6}\\x{D8}-\\x{F6}\\x{F8}-\\x{2FF}\\x{370}-\\x{37D}\\x{37F}-\\x{1FFF}"
        "\\x{200C}-\\x{200D}\\x{2070}-\\x{218F}\\x{2C00}-\\x{2FEF}\\x{3001}-\\x{D7FF}\\x{F900}-\\x{FDCF}"
        "\\x{FDF0}-\\x{FFFC}\\x{10000}-\\x{EFFFF}";
    static const RegularExpression name(
        fmt::format("[{0}][{0}\\-.0-9\\x{{B7}}\\x{{300}}-\\x{{36F}}\\x{{203F}}-\\x{{2040}}]*", start));
    return name.matchesWhole(text);
}

// Extensible Markup Language 1.0 (fifth edition), [2] Char.
bool isTextOfXml(const std::string &text) {
    static const RegularExpression other(R"([^\t\n\r\x{20}-\x{D7FF}\x{E000}-\x{FFFD}\x{10000}-\x{10FFFF}])");
    return UnicodeText::isValidUtf8(text) && !other.firstMatch(text);
}

class XmlBody {
public:
    explicit XmlBody(std::string_view codingPath) : codingPath_(codingPath) {}

    std::string encoded(const BodyItem &body) {
        const auto *const root = std::get_if<BodyItem::Dictionary>(&body.value);
        if (root == nullptr || root->size() != 1) {
            throw InvalidXMLBody(codingPath_);
        }
        const auto &[name, value] = *root->begin();
        fill(newElement(document_, name), value);
        std::ostringstream text;
        document_.save(text, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
        return std::move(text).str();
    }

private:
    [[nodiscard]] pugi::xml_node newElement(pugi::xml_node parent, const std::string &name) const {
        if (!isNameOfXml(name)) {
            throw InvalidXMLBody(codingPath_);
        }
        return parent.append_child(name.c_str());
    }

    void fillWithText(pugi::xml_node element, const std::string &text) const {
        if (!isTextOfXml(text)) {
            throw InvalidXMLBody(codingPath_);
        }
        element.append_child(pugi::node_pcdata).set_value(text.c_str());
    }

    // The property list reader limits the depth of the recursion.
    void fill(pugi::xml_node element, const BodyItem &body) const {
        std::visit(
            [&](const auto &value) {
                using Value = std::remove_cvref_t<decltype(value)>;
                if constexpr (std::is_same_v<Value, BodyItem::Dictionary>) {
                    for (const auto &[name, item] : value) {
                        append(element, name, item);
                    }
                } else if constexpr (std::is_same_v<Value, BodyItem::Array>) {
                    for (const BodyItem &item : value) {
                        fill(newElement(element, "element"), item);
                    }
                } else if constexpr (std::is_same_v<Value, std::string>) {
                    fillWithText(element, value);
                } else if constexpr (std::is_same_v<Value, double>) {
                    fillWithText(element, textOf(value));
                } else {
                    fillWithText(element, fmt::to_string(value));
                }
            },
            body.value);
    }

    void append(pugi::xml_node parent, const std::string &name, const BodyItem &body) const {
        const auto *const list = std::get_if<BodyItem::Array>(&body.value);
        if (list == nullptr) {
            fill(newElement(parent, name), body);
            return;
        }
        for (const BodyItem &item : *list) {
            fill(newElement(parent, name), item);
        }
    }

    std::string_view codingPath_;
    pugi::xml_document document_;
};

} // namespace

InvalidXMLBody::InvalidXMLBody(std::string_view codingPath)
    : LocalizedError(fmt::format("Invalid XML body for request at '{}'.", codingPath)) {}

Format encodingFormat(MDMApi api) noexcept {
    return api == MDMApi::airwatch ? Format::json : Format::xml;
}

std::string encodedBody(const BodyItem &body, Format format, std::string_view codingPath) {
    if (format == Format::xml) {
        return XmlBody(codingPath).encoded(body);
    }
    // The value of a variable may not be valid UTF-8.
    return jsonValue(body).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

} // namespace velmar
