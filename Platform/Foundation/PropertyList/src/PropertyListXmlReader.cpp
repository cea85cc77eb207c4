#include "PropertyListXmlReader.h"

#include "PropertyListScalars.h"
#include "PropertyListText.h"

#include <fmt/format.h>

namespace velmar {

using Expected = PropertyListBuilder::Expected;

static constexpr std::size_t sizeOfLargeText = std::size_t{8} << 20;

static std::uint32_t placeOf(const XmlScanner::Tag &tag) noexcept {
    return static_cast<std::uint32_t>(tag.offset);
}

PropertyList::Document PropertyListXmlReader::read() {
    if (const std::size_t bad = firstBadByte(text_, Characters::OfXml); bad != text_.npos) {
        scanner_.fail(reasonOfBadByte(text_, bad), bad);
    }
    const Tag root = scanner_.root();
    // A large file that was cut off is not built first; a small one is, which tells more about the place.
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
    return {builder_.takeRoot(), PropertyList::Document::Form::Xml, builder_.takeDuplicates(),
            LineIndex(text_)};
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
    if (tag.name == "key") {
        readKey(tag);
    } else if (tag.name == "dict") {
        readContainer(tag, true);
    } else if (tag.name == "array") {
        readContainer(tag, false);
    } else {
        PropertyList value = scalar(tag);
        requirePlaceForValue(tag);
        builder_.addValue(std::move(value), placeOf(tag));
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
    builder_.addKey(std::string(scanner_.text(tag)), placeOf(tag));
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

PropertyList PropertyListXmlReader::scalar(const Tag &tag) {
    // No text is looked at before the element is known.
    if (tag.name == "string") {
        return PropertyList(scanner_.text(tag));
    }
    if (tag.name == "true" || tag.name == "false") {
        if (!scanner_.text(tag).empty()) {
            scanner_.fail(fmt::format("the element <{}> is not empty", tag.name), tag.offset);
        }
        return PropertyList(tag.name == "true");
    }
    const auto valueOf = [&](auto parse, std::string_view what) {
        const std::string_view text = scanner_.text(tag);
        auto value = parse(text);
        if (!value) {
            scanner_.fail(fmt::format("'{}' is not {}", shortened(text), what), tag.offset);
        }
        return PropertyList(std::move(*value));
    };
    if (tag.name == "integer") {
        return valueOf(integerFrom, "an integer between -2^63 and 2^64 - 1");
    }
    if (tag.name == "real") {
        return valueOf(realFrom, "a real number");
    }
    if (tag.name == "date") {
        return valueOf(dateFrom, "a date in the form 2024-12-31T23:59:59Z");
    }
    if (tag.name == "data") {
        return valueOf(dataFrom, "data in base64");
    }
    scanner_.fail(fmt::format("the element <{}> is not known", shortened(tag.name)), tag.offset);
}

} // namespace velmar
