#include "PropertyListScalars.h"
#include "PropertyListText.h"

#include <Foundation/PropertyListDocument.h>

#include <fmt/format.h>

namespace velmar {

// Limits of a readable message.
static constexpr std::size_t maximumLength = 400;
static constexpr std::size_t maximumNesting = 8;

static void append(std::string &text, const PropertyListValue &value, std::size_t depth);

static bool isFull(std::string &text) {
    if (text.size() < maximumLength) {
        return false;
    }
    text += "...";
    return true;
}

static void appendArray(std::string &text, std::span<const PropertyListValue> array, std::size_t depth) {
    text += '[';
    const char *separator = "";
    for (const PropertyListValue &element : array) {
        text += separator;
        if (isFull(text)) {
            break;
        }
        append(text, element, depth + 1);
        separator = ", ";
    }
    text += ']';
}

static void appendDictionary(std::string &text, std::span<const PropertyListValue::Entry> entries,
                             std::size_t depth) {
    text += '{';
    const char *separator = "";
    for (const auto &[key, keyOffset, value] : entries) {
        text += separator;
        if (isFull(text)) {
            break;
        }
        text += key.text();
        text += " = ";
        append(text, value, depth + 1);
        separator = "; ";
    }
    text += '}';
}

static void append(std::string &text, const PropertyListValue &value, std::size_t depth) {
    if (depth > maximumNesting) {
        text += "...";
        return;
    }
    switch (value.kind()) {
    case PropertyList::Kind::Boolean:
        text += *value.boolean() ? "true" : "false";
        break;
    case PropertyList::Kind::Integer:
        text += std::to_string(*value.integer());
        break;
    case PropertyList::Kind::UnsignedInteger:
        text += std::to_string(*value.unsignedInteger());
        break;
    case PropertyList::Kind::Real:
        text += textOfReal(*value.real());
        break;
    case PropertyList::Kind::String:
        text += *value.string();
        break;
    case PropertyList::Kind::Data:
        text += fmt::format("<{} bytes>", value.data()->size());
        break;
    case PropertyList::Kind::Date:
        text += textOfDate(*value.date())
                    .value_or(fmt::format("<{} s>", value.date()->secondsSinceReferenceDate));
        break;
    case PropertyList::Kind::Array:
        appendArray(text, value.elements(), depth);
        break;
    case PropertyList::Kind::Dictionary:
        appendDictionary(text, value.entries(), depth);
        break;
    }
}

std::string PropertyListValue::text() const {
    std::string text;
    append(text, *this, 0);
    return text;
}

std::string PropertyList::text() const {
    return PropertyListDocument::of(*this).root().text();
}

} // namespace velmar
