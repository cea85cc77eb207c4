#include "PropertyListScalars.h"
#include "PropertyListText.h"

#include <Foundation/PropertyList.h>

#include <fmt/format.h>

namespace velmar {

namespace {

class XmlWriter {
public:
    std::string write(const PropertyList &root) {
        text_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                "<plist version=\"1.0\">\n";
        writeValue(root);
        text_ += "</plist>\n";
        return std::move(text_);
    }

private:
    [[noreturn]] static void fail(std::string_view reason) {
        throw PropertyListError(reason, PropertyListError::noOffset, 0);
    }

    void writeValue(const PropertyList &value) {
        indent();
        switch (value.kind()) {
        case PropertyList::Kind::Boolean:
            text_ += *value.boolean() ? "<true/>\n" : "<false/>\n";
            break;
        case PropertyList::Kind::Integer:
            writeElement("integer", std::to_string(*value.integer()));
            break;
        case PropertyList::Kind::UnsignedInteger:
            writeElement("integer", std::to_string(*value.unsignedInteger()));
            break;
        case PropertyList::Kind::Real:
            writeElement("real", textOfReal(*value.real()));
            break;
        case PropertyList::Kind::String:
            writeElement("string", *value.string());
            break;
        case PropertyList::Kind::Data:
            writeData(*value.data());
            break;
        case PropertyList::Kind::Date:
            writeDate(*value.date());
            break;
        case PropertyList::Kind::Array:
            writeArray(*value.array());
            break;
        case PropertyList::Kind::Dictionary:
            writeDictionary(*value.dictionary());
            break;
        }
    }

    void writeArray(const PropertyList::Array &array) {
        enter();
        if (array.empty()) {
            text_ += "<array/>\n";
            --depth_;
            return;
        }
        text_ += "<array>\n";
        for (const PropertyList &value : array) {
            writeValue(value);
        }
        leave("</array>\n");
    }

    void writeDictionary(const PropertyList::Dictionary &dictionary) {
        enter();
        if (dictionary.empty()) {
            text_ += "<dict/>\n";
            --depth_;
            return;
        }
        text_ += "<dict>\n";
        for (const auto &[key, value] : dictionary) {
            indent();
            writeElement("key", key);
            writeValue(value);
        }
        leave("</dict>\n");
    }

    // The members of the outermost container are indented by one tab.
    void enter() {
        if (++depth_ > PropertyList::maximumDepth) {
            fail(fmt::format("the values are nested more than {} deep", PropertyList::maximumDepth));
        }
    }

    void leave(std::string_view tag) {
        --depth_;
        indent();
        text_ += tag;
    }

    void indent() { text_.append(depth_, '\t'); }

    void writeElement(std::string_view name, std::string_view contents) {
        text_ += fmt::format("<{}>", name);
        writeEscaped(contents);
        text_ += fmt::format("</{}>\n", name);
    }

    void writeEscaped(std::string_view contents) {
        if (const std::size_t bad = firstBadByte(contents, Characters::OfXml); bad != contents.npos) {
            fail(reasonOfBadByte(contents, bad));
        }
        for (const char character : contents) {
            switch (character) {
            case '&':
                text_ += "&amp;";
                break;
            case '<':
                text_ += "&lt;";
                break;
            case '>':
                text_ += "&gt;";
                break;
            case '\r':
                text_ += "&#13;";
                break; // readers convert a literal CR to a line feed
            default:
                text_ += character;
            }
        }
    }

    void writeDate(PropertyList::Date date) {
        const std::optional<std::string> text = textOfDate(date);
        if (!text) {
            fail("a date is not within the years 0 to 9999");
        }
        writeElement("date", *text);
    }

    void writeData(const PropertyList::Data &data) {
        constexpr std::size_t lineLength = 76;
        const std::string base64 = base64Of(data);
        text_ += "<data>\n";
        for (std::size_t start = 0; start < base64.size(); start += lineLength) {
            indent();
            text_.append(base64, start, lineLength);
            text_ += '\n';
        }
        indent();
        text_ += "</data>\n";
    }

    std::string text_;
    std::size_t depth_ = 0;
};

} // namespace

std::string PropertyList::xml() const {
    return XmlWriter().write(*this);
}

} // namespace velmar
