#include <Configuration/Decodable.h>

#include "VariableReferences.h"

#include <cmath>
#include <limits>

namespace velmar {

void recordVariables(const Decoding &decoding) {
    if (VariableReferences(*decoding.value.string()).next()) {
        decoding.context.addVariablesRecord(decoding.path, decoding.value);
    }
}

void throwWrongType(const Decoding &decoding, const std::string &description,
                    const std::string &expectedType) {
    throw ConfigurationError(ConfigurationErrors::DecodingError{
        decoding.path.text(), fmt::format("{}\nExpected type: {}.", description, expectedType)});
}

void throwWrongType(const Decoding &decoding, const std::string &expectedType) {
    throwWrongType(decoding, fmt::format("The value is {}.", foundText(decoding.value)), expectedType);
}

void throwNoItem(const Decoding &decoding, const std::string &expectedType) {
    throw ConfigurationError(ConfigurationErrors::DecodingError{
        decoding.path.text(),
        fmt::format("Missing required key '{}' or wrong value. Expected type: {}. The value is {}.",
                    decoding.path.lastKey(), expectedType, foundText(decoding.value))});
}

bool Decodable<bool>::decode(const Decoding &decoding) {
    if (const auto value = decoding.value.boolean()) {
        return *value;
    }
    throwWrongType(decoding, plistType());
}

std::int64_t Decodable<std::int64_t>::decode(const Decoding &decoding) {
    if (const auto value = decoding.value.integer()) {
        return *value;
    }
    if (const auto value = decoding.value.real()) {
        constexpr double limit = 9223372036854775808.0; // 2^63, the first integer out of range
        if (*value >= -limit && *value < limit && std::trunc(*value) == *value) {
            return static_cast<std::int64_t>(*value);
        }
    }
    if (decoding.value.unsignedInteger()) {
        throwWrongType(decoding, fmt::format("The value {} is too large.", decoding.value.text()),
                       plistType());
    }
    throwWrongType(decoding, plistType());
}

double Decodable<double>::decode(const Decoding &decoding) {
    if (const auto value = decoding.value.integer()) {
        return static_cast<double>(*value);
    }
    if (const auto value = decoding.value.unsignedInteger()) {
        return static_cast<double>(*value);
    }
    if (const auto value = decoding.value.real()) {
        // No key has a use for infinity or NaN, and not every key has a range.
        if (!std::isfinite(*value)) {
            throw ConfigurationError(
                ConfigurationErrors::WrongValue{std::string(decoding.path.lastKey()), decoding.path.text()});
        }
        return *value;
    }
    throwWrongType(decoding, plistType());
}

std::string Decodable<std::string>::decode(const Decoding &decoding) {
    if (const auto value = decoding.value.string()) {
        recordVariables(decoding);
        return std::string(*value);
    }
    throwWrongType(decoding, plistType());
}

std::vector<std::string> decodeTexts(const Decoding &decoding) {
    const auto isWhole = [](const PropertyListValue &value) {
        return value.integer() || value.unsignedInteger();
    };
    const auto isNumber = [&](const PropertyListValue &value) {
        return isWhole(value) || (value.real() && std::isfinite(*value.real()));
    };
    if (decoding.value.isArray()) {
        const std::span<const PropertyListValue> elements = decoding.value.elements();
        const bool areTexts = std::ranges::all_of(
            elements, [](const PropertyListValue &value) { return value.string().has_value(); });
        const bool areWhole = std::ranges::all_of(elements, isWhole);
        if (areTexts || areWhole || std::ranges::all_of(elements, isNumber)) {
            std::vector<std::string> texts;
            texts.reserve(elements.size());
            for (const PropertyListValue &value : elements) {
                const CodingPath path(decoding.path, texts.size());
                const Decoding element{value, path, decoding.context};
                texts.push_back(areTexts   ? Decodable<std::string>::decode(element)
                                : areWhole ? value.text()
                                           : textOf(Decodable<double>::decode(element)));
            }
            return texts;
        }
    }
    throw ConfigurationError(ConfigurationErrors::ArrayCodingStrategyFailed{decoding.path.text()});
}

} // namespace velmar
