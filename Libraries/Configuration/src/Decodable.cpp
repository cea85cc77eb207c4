#include <Configuration/Decodable.h>

#include <cmath>
#include <limits>

namespace velmar {

std::string possibleValuesText(std::span<const std::string_view> rawStrings) {
    std::string text = "string | Possible values: ";
    for (std::size_t index = 0; index < rawStrings.size(); ++index) {
        text += fmt::format("{}'{}'", index == 0 ? "" : ", ", rawStrings[index]);
    }
    return text;
}

std::string foundText(const PropertyList &value) {
    constexpr std::size_t longestShown = 80;
    switch (value.kind()) {
    case PropertyList::Kind::Boolean:
        return "a boolean";
    case PropertyList::Kind::Integer:
    case PropertyList::Kind::UnsignedInteger:
        return fmt::format("the integer {}", value.text());
    case PropertyList::Kind::Real:
        return fmt::format("the real {}", textOf(*value.real()));
    case PropertyList::Kind::String:
        return value.string()->size() > longestShown ? "a long string" : fmt::format("'{}'", *value.string());
    case PropertyList::Kind::Data:
        return "data";
    case PropertyList::Kind::Date:
        return "a date";
    case PropertyList::Kind::Array:
        return "an array";
    case PropertyList::Kind::Dictionary:
        break;
    }
    return "a dictionary";
}

void throwWrongType(const Decoding &decoding, const std::string &description,
                    const std::string &expectedType) {
    throw ConfigurationError(ConfigurationErrors::DecodingError{
        decoding.path.text(), fmt::format("{}\nExpected type: {}.", description, expectedType)});
}

void throwWrongType(const Decoding &decoding, const std::string &expectedType) {
    throwWrongType(decoding, fmt::format("The value is {}.", foundText(decoding.value)), expectedType);
}

bool Decodable<bool>::decode(const Decoding &decoding) {
    if (const bool *value = decoding.value.boolean()) {
        return *value;
    }
    throwWrongType(decoding, plistType());
}

std::int64_t Decodable<std::int64_t>::decode(const Decoding &decoding) {
    if (const std::int64_t *value = decoding.value.integer()) {
        return *value;
    }
    if (const double *value = decoding.value.real()) {
        constexpr double limit = 9223372036854775808.0; // 2^63, the first whole number beyond
        if (*value >= -limit && *value < limit && std::trunc(*value) == *value) {
            return static_cast<std::int64_t>(*value);
        }
    }
    throwWrongType(decoding, plistType());
}

double Decodable<double>::decode(const Decoding &decoding) {
    if (const std::int64_t *value = decoding.value.integer()) {
        return static_cast<double>(*value);
    }
    if (const std::uint64_t *value = decoding.value.unsignedInteger()) {
        return static_cast<double>(*value);
    }
    if (const double *value = decoding.value.real()) {
        // No key of the file has a use for an infinite size, and "nan" passes every range.
        if (!std::isfinite(*value)) {
            throw ConfigurationError(
                ConfigurationErrors::WrongValue{std::string(decoding.path.lastKey()), decoding.path.text()});
        }
        return *value;
    }
    throwWrongType(decoding, plistType());
}

std::string Decodable<std::string>::decode(const Decoding &decoding) {
    if (const std::string *value = decoding.value.string()) {
        return *value;
    }
    throwWrongType(decoding, plistType());
}

std::vector<std::string> decodeTexts(const Decoding &decoding) {
    const auto isWholeNumber = [](const PropertyList &value) {
        return value.integer() || value.unsignedInteger();
    };
    if (const PropertyList::Array *array = decoding.value.array()) {
        const bool areTexts =
            std::ranges::all_of(*array, [](const PropertyList &value) { return value.string(); });
        const bool areIntegers = std::ranges::all_of(*array, isWholeNumber);
        const bool areReals =
            std::ranges::all_of(*array, [](const PropertyList &value) { return value.real(); });
        if (areTexts || areIntegers || areReals) {
            std::vector<std::string> texts;
            texts.reserve(array->size());
            for (const PropertyList &value : *array) {
                texts.push_back(areTexts ? *value.string() : areReals ? textOf(*value.real()) : value.text());
            }
            return texts;
        }
    }
    throw ConfigurationError(ConfigurationErrors::ArrayCodingStrategyFailed{decoding.path.text()});
}

} // namespace velmar
