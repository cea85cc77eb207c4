#pragma once

#include <Configuration/ClosedRange.h>
#include <Foundation/LocalizedError.h>

#include <optional>
#include <string>

namespace velmar {

/// A requirement between the keys of an item that the file doesn't meet.
class KeyValidationError final : public LocalizedError {
public:
    explicit KeyValidationError(std::string description) : LocalizedError(std::move(description)) {}
};

namespace ConfigurationErrors {

struct MissingValue {
    std::string key;
    [[nodiscard]] std::string errorDescription() const;
};
struct MissingValueWithPath {
    std::string key;
    std::string path;
    [[nodiscard]] std::string errorDescription() const;
};
struct WrongValue {
    std::string key;
    std::string path;
    [[nodiscard]] std::string errorDescription() const;
};
struct WrongValueInRange {
    double value = 0;
    ClosedRange range;
    std::string path;
    [[nodiscard]] std::string errorDescription() const;
};
struct DecodingError {
    std::string path;
    std::string description;
    [[nodiscard]] std::string errorDescription() const;
};
struct ArrayCodingStrategyFailed {
    std::string path;
    [[nodiscard]] std::string errorDescription() const;
};
struct ValidationError {
    KeyValidationError error;
    [[nodiscard]] std::string errorDescription() const;
};
struct RequestBodyCoding {
    std::string codingPath;
    [[nodiscard]] std::string errorDescription() const;
};
struct RequestBodyGroup {
    enum class Group { dictionary, array };
    Group group = Group::dictionary;
    [[nodiscard]] std::string errorDescription() const;
};
struct InvalidRegex {
    std::string pattern;
    std::string path;
    [[nodiscard]] std::string errorDescription() const;
};
struct CopyTypeError {
    std::string keyDescription;
    std::string otherKeyDescription;
    [[nodiscard]] std::string errorDescription() const;
};
struct UnexpectedError {
    std::string description;
    [[nodiscard]] std::string errorDescription() const;
};
struct ColorSpecification {
    std::optional<std::string> string; ///< Absent if the value in the file isn't a string.
    std::string path;
    [[nodiscard]] std::string errorDescription() const;
};
struct Custom {
    std::string path;
    std::string description;
    [[nodiscard]] std::string errorDescription() const;
};

} // namespace ConfigurationErrors

/// The reason why a configuration is refused. Paths have the form of CodingPath::text().
class ConfigurationError final
    : public ErrorOfCases<ConfigurationErrors::MissingValue, ConfigurationErrors::MissingValueWithPath,
                          ConfigurationErrors::WrongValue, ConfigurationErrors::WrongValueInRange,
                          ConfigurationErrors::DecodingError, ConfigurationErrors::ArrayCodingStrategyFailed,
                          ConfigurationErrors::ValidationError, ConfigurationErrors::RequestBodyCoding,
                          ConfigurationErrors::RequestBodyGroup, ConfigurationErrors::InvalidRegex,
                          ConfigurationErrors::CopyTypeError, ConfigurationErrors::UnexpectedError,
                          ConfigurationErrors::ColorSpecification, ConfigurationErrors::Custom> {
public:
    using ErrorOfCases::ErrorOfCases;
};

} // namespace velmar
