#include <Configuration/ConfigurationError.h>
#include <Configuration/Texts.h>

#include <fmt/format.h>

namespace velmar {

namespace ConfigurationErrors {

std::string MissingValue::errorDescription() const {
    return fmt::format("Missing value for key {}", key);
}

std::string MissingValueWithPath::errorDescription() const {
    return fmt::format("Missing required key '{}' at '{}'", key, path);
}

std::string WrongValue::errorDescription() const {
    return fmt::format("Wrong value for key '{}' when decoding at '{}'", key, path);
}

std::string WrongValueInRange::errorDescription() const {
    return fmt::format("Wrong value {} in allowed range {}...{} at {}", textOf(value), textOf(range.lower),
                       textOf(range.upper), path);
}

std::string DecodingError::errorDescription() const {
    return fmt::format("Decoding error at '{}'. {}", path, description);
}

std::string ArrayCodingStrategyFailed::errorDescription() const {
    return fmt::format("Unable to decode or encode the array as [Int], [Real], or [String] at {}", path);
}

std::string ValidationError::errorDescription() const {
    return fmt::format("Key validation error. {}", error.errorDescription());
}

std::string RequestBodyCoding::errorDescription() const {
    return fmt::format("{}. Error while decoding the request body.", codingPath);
}

std::string RequestBodyGroup::errorDescription() const {
    return fmt::format("Trying to add value to the body which is not a(n) {}",
                       group == Group::dictionary ? "dictionary" : "array");
}

std::string InvalidRegex::errorDescription() const {
    return fmt::format("The regular expression pattern '{}' at '{}' is invalid.", pattern, path);
}

std::string CopyTypeError::errorDescription() const {
    return fmt::format("Cannot copy {} into {} as they do no have the same Value type.", keyDescription,
                       otherKeyDescription);
}

std::string UnexpectedError::errorDescription() const {
    return description;
}

std::string ColorSpecification::errorDescription() const {
    return fmt::format(
        "Invalid string color specification '{}' at {}. Color specification: '#NNNNNN' where N is a "
        "number between 0 and F.",
        string.value_or(""), path);
}

std::string Custom::errorDescription() const {
    return fmt::format("Error at '{}'. {}", path, description);
}

} // namespace ConfigurationErrors

} // namespace velmar
