#include <Configuration/Texts.h>

#include <fmt/format.h>

namespace velmar {

std::string foundText(const PropertyListValue &value) {
    constexpr std::size_t longestShown = 80;
    switch (value.kind()) {
    case PropertyListValue::Kind::Boolean:
        return "a boolean";
    case PropertyListValue::Kind::Integer:
    case PropertyListValue::Kind::UnsignedInteger:
        return fmt::format("the integer {}", value.text());
    case PropertyListValue::Kind::Real:
        return fmt::format("the real {}", textOf(*value.real()));
    case PropertyListValue::Kind::String:
        return value.string()->size() > longestShown ? "a long string" : fmt::format("'{}'", *value.string());
    case PropertyListValue::Kind::Data:
        return "data";
    case PropertyListValue::Kind::Date:
        return "a date";
    case PropertyListValue::Kind::Array:
        return "an array";
    case PropertyListValue::Kind::Dictionary:
        break;
    }
    return "a dictionary";
}

std::string possibleValuesText(std::span<const std::string_view> rawStrings) {
    std::string text = "string | Possible values: ";
    for (std::size_t index = 0; index < rawStrings.size(); ++index) {
        text += fmt::format("{}'{}'", index == 0 ? "" : ", ", rawStrings[index]);
    }
    return text;
}

std::string listText(const std::vector<std::string_view> &texts) {
    std::string text = "[";
    for (const std::string_view element : texts) {
        text += fmt::format("{}\"{}\"", text.size() > 1 ? ", " : "", element);
    }
    return text + "]";
}

} // namespace velmar
