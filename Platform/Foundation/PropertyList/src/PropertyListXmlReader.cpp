#include "PropertyListXmlReader.h"

#include "PropertyListScalars.h"
#include "PropertyListText.h"

#include <fmt/format.h>

namespace velmar {

using Expected = PropertyListBuilder::Expected;

static constexpr std::size_t sizeOfLargeText = std::size_t{8} << 20;

PropertyListXmlReader::Element PropertyListXmlReader::elementOf(std::string_view name) noexcept {
    // Switching on the length keeps each comparison to a few bytes.
    switch (name.size()) {
    case 3:
        return name == "key" ? Element::Key : Element::Unknown;
    case 4:
        return name == "dict"   ? Element::Dictionary
               : name == "true" ? Element::True
               : name == "real" ? Element::Real
               : name == "date" ? Element::Date
               : name == "data" ? Element::Data
                                : Element::Unknown;
    case 5:
        return name == "array" ? Element::Array : name == "false" ? Element::False : Element::Unknown;
    case 6:
        return name == "string" ? Element::String : Element::Unknown;
    case 7:
        return name == "integer" ? Element::Integer : Element::Unknown;
    default:
        return Element::Unknown;
    }
}

static std::uint32_t placeOf(const XmlScanner::Tag &tag) noexcept {
    return static_cast<std::uint32_t>(tag.offset);
}

PropertyListDocument PropertyListXmlReader::read() {
    if (const std::size_t bad = firstBadByte(text_, Characters::OfXml); bad != text_.npos) {
        scanner_.fail(reasonOfBadByte(text_, bad), bad);
    }
    const Tag root = scanner_.root();
    // Rejects a large truncated file before it is built. Small ones are built to report the exact position.
    if (text_.size() > sizeOfLargeText && text_.rfind("</plist") == text_.npos) {
        scanner_.fail("the text ends before the property list does", text_.size());
    }
    if (root.form == Tag::Form::Start) {
        readTree(root);
    }
    if (builder_.expected() != Expected::Nothing) {
        scanner_.fail("the element <plist> has no value", root.offset);
    }
    scanner_.finish();
    return builder_.takeDocument(PropertyListDocument::Form::Xml, text_);
}

void PropertyListXmlReader::readTree(const Tag &root) {
    for (;;) {
        const Tag tag = scanner_.next();
        if (tag.form != Tag::Form::End) {
            readStart(tag);
        } else if (builder_.isOpen()) {
            readEnd(tag);
        } else if (tag.name == root.name) {
            return;
        } else {
            scanner_.fail(fmt::format("the tag </{}> ends no element", shortened(tag.name)), tag.offset);
        }
    }
}

void PropertyListXmlReader::readStart(const Tag &tag) {
    switch (const Element element = elementOf(tag.name)) {
    case Element::Key:
        return readKey(tag);
    case Element::Dictionary:
        return readContainer(tag, true);
    case Element::Array:
        return readContainer(tag, false);
    default:
        const PropertyListValue value = scalar(tag, element);
        requirePlaceForValue(tag);
        builder_.addValue(value, placeOf(tag));
    }
}

void PropertyListXmlReader::readContainer(const Tag &tag, bool isDictionary) {
    requirePlaceForValue(tag);
    if (builder_.isAtMaximumDepth()) {
        scanner_.fail(fmt::format("the values are nested more than {} deep", PropertyList::maximumDepth),
                      tag.offset);
    }
    if (isDictionary) {
        builder_.openDictionary(placeOf(tag));
    } else {
        builder_.openArray(placeOf(tag));
    }
    if (tag.form == Tag::Form::Empty) {
        builder_.close();
    }
}

void PropertyListXmlReader::readKey(const Tag &tag) {
    if (builder_.expected() == Expected::Value) {
        scanner_.fail(fmt::format("the key '{}' has no value", shortened(builder_.lastKey())), tag.offset);
    }
    if (builder_.expected() != Expected::Key) {
        scanner_.fail("a key is outside of a dictionary", tag.offset);
    }
    builder_.addKey(keptText(tag), placeOf(tag));
}

void PropertyListXmlReader::readEnd(const Tag &tag) {
    const std::string_view open = builder_.isOpenDictionary() ? "dict" : "array";
    if (tag.name != open) {
        scanner_.fail(fmt::format("the element <{}> is ended by </{}>", open, shortened(tag.name)),
                      tag.offset);
    }
    if (builder_.expected() == Expected::Value) {
        scanner_.fail(fmt::format("the key '{}' has no value", shortened(builder_.lastKey())), tag.offset);
    }
    builder_.close();
}

void PropertyListXmlReader::requirePlaceForValue(const Tag &tag) const {
    if (builder_.expected() == Expected::Key) {
        scanner_.fail(fmt::format("the element <{}> in a dictionary has no key", tag.name), tag.offset);
    }
    if (builder_.expected() == Expected::Nothing) {
        scanner_.fail("the element <plist> has more than one value", tag.offset);
    }
    if (builder_.isFull()) {
        scanner_.fail(fmt::format("there are more than {} values", PropertyList::maximumValues), tag.offset);
    }
}

// Text without references is a view of the file and needs no copy.
std::string_view PropertyListXmlReader::keptText(const Tag &tag) {
    const std::string_view text = scanner_.text(tag);
    return scanner_.isReplaced(text) ? builder_.keep(text) : text;
}

// Reads the text only after the element is known.
PropertyListValue PropertyListXmlReader::scalar(const Tag &tag, Element element) {
    const auto valueOf = [&](auto parse, std::string_view what) {
        const std::string_view text = scanner_.text(tag);
        auto value = parse(text);
        if (!value) {
            scanner_.fail(fmt::format("'{}' is not {}", shortened(text), what), tag.offset);
        }
        return *std::move(value);
    };
    switch (element) {
    case Element::String:
        return PropertyListValue(keptText(tag));
    case Element::True:
    case Element::False:
        if (!scanner_.text(tag).empty()) {
            scanner_.fail(fmt::format("the element <{}> is not empty", tag.name), tag.offset);
        }
        return PropertyListValue(element == Element::True);
    case Element::Integer:
        return valueOf(integerFrom, "an integer between -2^63 and 2^64 - 1");
    case Element::Real:
        return PropertyListValue(valueOf(realFrom, "a real number"));
    case Element::Date:
        return PropertyListValue(valueOf(dateFrom, "a date in the form 2024-12-31T23:59:59Z"));
    case Element::Data:
        return PropertyListValue(builder_.keep(valueOf(dataFrom, "data in base64").bytes));
    default:
        scanner_.fail(fmt::format("the element <{}> is not known", shortened(tag.name)), tag.offset);
    }
}

} // namespace velmar
