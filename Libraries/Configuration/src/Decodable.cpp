#include <Configuration/Decodable.h>
#include <Configuration/Populatable.h>

#include <cmath>
#include <limits>

namespace velmar {

void recordVariables(std::string_view text, const Decoding &decoding) {
    if (VariableNames variables = usedVariables(text); !variables.empty()) {
        decoding.context.addVariablesRecord(decoding.path, decoding.value.offset(), std::move(variables));
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
    if (decoding.value.unsignedInteger() != nullptr) {
        throwWrongType(decoding, fmt::format("The value {} is too large.", decoding.value.text()),
                       plistType());
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
        recordVariables(*value, decoding);
        return *value;
    }
    throwWrongType(decoding, plistType());
}

std::vector<std::string> decodeTexts(const Decoding &decoding) {
    const auto isWhole = [](const PropertyList &value) { return value.integer() || value.unsignedInteger(); };
    const auto isNumber = [&](const PropertyList &value) {
        return isWhole(value) || (value.real() != nullptr && std::isfinite(*value.real()));
    };
    if (const PropertyList::Array *array = decoding.value.array()) {
        const bool areTexts =
            std::ranges::all_of(*array, [](const PropertyList &value) { return value.string(); });
        const bool areWhole = std::ranges::all_of(*array, isWhole);
        if (areTexts || areWhole || std::ranges::all_of(*array, isNumber)) {
            std::vector<std::string> texts;
            texts.reserve(array->size());
            for (std::size_t index = 0; index < array->size(); ++index) {
                const PropertyList &value = (*array)[index];
                const CodingPath path(decoding.path, index);
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
