#include "PropertyListBinaryReader.h"
#include "PropertyListXmlReader.h"

#include <Foundation/PropertyListDocument.h>

#include <limits>

namespace velmar {

namespace {

PropertyListValue scalar(const PropertyList &value) {
    using Kind = PropertyList::Kind;
    switch (value.kind()) {
    case Kind::Boolean:
        return PropertyListValue(*value.boolean());
    case Kind::Integer:
        return PropertyListValue(*value.integer());
    case Kind::UnsignedInteger:
        return PropertyListValue(*value.unsignedInteger());
    case Kind::Real:
        return PropertyListValue(*value.real());
    case Kind::String:
        return PropertyListValue(std::string_view(*value.string()));
    case Kind::Data:
        return PropertyListValue(PropertyListValue::Data(value.data()->bytes));
    case Kind::Date:
        return PropertyListValue(*value.date());
    case Kind::Array:
    case Kind::Dictionary:
        break;
    }
    return {};
}

/// Adds a PropertyList to a builder. Not recursive, because the depth of a created value is unlimited.
class MadeValue {
public:
    explicit MadeValue(PropertyListBuilder &builder) : builder_(builder) {}

    void add(const PropertyList &root) {
        for (const PropertyList *value = &root; value != nullptr; value = next()) {
            if (value->array() != nullptr) {
                builder_.openArray(0);
                open_.push_back({value});
            } else if (value->dictionary() != nullptr) {
                builder_.openDictionary(0);
                open_.push_back({value});
            } else {
                builder_.addValue(scalar(*value), 0);
            }
        }
    }

private:
    struct Open {
        const PropertyList *container;
        std::size_t next = 0;
    };

    // Returns the next child after adding its key, if any, and closes completed containers. Returns nullptr
    // at the end.
    const PropertyList *next() {
        while (!open_.empty()) {
            auto &[container, index] = open_.back();
            const PropertyList::Array *const array = container->array();
            if (array != nullptr && index < array->size()) {
                return &(*array)[index++];
            }
            const PropertyList::Dictionary *const dictionary = container->dictionary();
            if (dictionary != nullptr && index < dictionary->size()) {
                const auto &[key, value] = dictionary->begin()[index++];
                builder_.addKey(key, 0);
                return &value;
            }
            builder_.close();
            open_.pop_back();
        }
        return nullptr;
    }

    PropertyListBuilder &builder_;
    std::vector<Open> open_;
};

} // namespace

PropertyListDocument PropertyListDocument::read(std::span<const std::byte> bytes) {
    return read(std::string_view(reinterpret_cast<const char *>(bytes.data()), bytes.size()));
}

PropertyListDocument PropertyListDocument::read(std::string_view bytes) {
    if (bytes.empty()) {
        throw PropertyListError("the file is empty", 0, 1);
    }
    if (bytes.size() >= std::numeric_limits<std::uint32_t>::max()) {
        throw PropertyListError("the file is larger than 4 GiB", 0, 1);
    }
    if (bytes.starts_with("bplist")) {
        return PropertyListBinaryReader(std::as_bytes(std::span(bytes))).read();
    }
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) {
        throw PropertyListError("the text is UTF-16, only UTF-8 is supported", 0, 1);
    }
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    const std::string_view text = bytes.substr(bytes.starts_with(byteOrderMark) ? byteOrderMark.size() : 0);
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    if (first == text.npos || text[first] != '<') {
        throw PropertyListError("it is neither an XML nor a binary property list", 0, 1);
    }
    return PropertyListXmlReader(bytes).read();
}

PropertyListDocument PropertyListDocument::of(const PropertyList &value) {
    PropertyListBuilder builder(0);
    MadeValue(builder).add(value);
    return builder.takeDocument(Form::Binary); // a form without lines
}

LineIndex PropertyListDocument::lines() const {
    return form_ == Form::Xml ? LineIndex(text_) : LineIndex();
}

PropertyList PropertyList::read(std::span<const std::byte> bytes) {
    return PropertyList(PropertyListDocument::read(bytes).root());
}

PropertyList PropertyList::read(std::string_view bytes) {
    return PropertyList(PropertyListDocument::read(bytes).root());
}

} // namespace velmar
