#include <Configuration/ConfigurationError.h>
#include <Configuration/Requirement.h>
#include <Configuration/Texts.h>

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <string>

namespace velmar {

namespace {

std::string brokenRule(std::string_view key, const Requirement &requirement) {
    std::vector<std::string_view> names;
    std::ranges::transform(requirement.keys, std::back_inserter(names), &ConfigCodingKey::stringValue);
    const std::string keys = listText(names);
    switch (requirement.type) {
    case RequirementType::requiredIfSpecified:
        return fmt::format("The key '{}' is required when the key(s) '{}' is/are specified.", key, keys);
    case RequirementType::requiredIfNotSpecified:
        return fmt::format("The key {} is required when one of the following keys is missing: {}", key, keys);
    case RequirementType::exclude:
        return fmt::format("The key {} excludes a key specified in {}.", key, keys);
    case RequirementType::requiredExcluding:
        return fmt::format("One of the keys {} has to be specified. But only one can be specified.", keys);
    case RequirementType::required:
    case RequirementType::optional:
        break;
    }
    return fmt::format("Missing required key {}", key);
}

} // namespace

void validate(std::string_view key, bool wasGiven, std::size_t givenOfListed,
              const Requirement &requirement) {
    bool fails = false;
    switch (requirement.type) {
    case RequirementType::requiredIfSpecified:
        fails = !wasGiven && givenOfListed == requirement.keys.size();
        break;
    case RequirementType::requiredIfNotSpecified:
        fails = !wasGiven && givenOfListed < requirement.keys.size();
        break;
    case RequirementType::exclude:
        fails = wasGiven && givenOfListed > 0;
        break;
    case RequirementType::requiredExcluding:
        fails = wasGiven == (givenOfListed > 0);
        break;
    case RequirementType::required:
        fails = !wasGiven;
        break;
    case RequirementType::optional:
        break;
    }
    if (fails) {
        throw ConfigurationError(
            ConfigurationErrors::ValidationError{KeyValidationError(brokenRule(key, requirement))});
    }
}

} // namespace velmar
