#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace velmar {

/// The name of a key. The text must outlive the key, as that of a literal does.
struct ConfigCodingKey {
    std::string_view stringValue;
    std::optional<int> intValue;

    constexpr ConfigCodingKey(const char *name) : stringValue(name) {} // NOLINT(google-explicit-constructor)
    constexpr explicit ConfigCodingKey(int index) : intValue(index) {}

    bool operator==(const ConfigCodingKey &) const = default;
};

enum class RequirementType {
    requiredIfSpecified,    ///< Must be given when all the listed keys are given.
    requiredIfNotSpecified, ///< Must be given when at least one listed key is missing.
    exclude,                ///< Must not be given together with a listed key.
    requiredExcluding,      ///< Exactly one of this key and the listed keys must be given.
    optional,               ///< May be absent; the default then applies.
    required,               ///< Must be given.
};

/// The requirement of a key, which may depend on its siblings in the same item.
struct Requirement {
    RequirementType type = RequirementType::optional;
    std::vector<ConfigCodingKey> keys;
};

inline const Requirement optional{RequirementType::optional, {}};
inline const Requirement required{RequirementType::required, {}};

inline Requirement requiredIfSpecified(std::vector<ConfigCodingKey> keys) {
    return {RequirementType::requiredIfSpecified, std::move(keys)};
}
inline Requirement requiredIfNotSpecified(std::vector<ConfigCodingKey> keys) {
    return {RequirementType::requiredIfNotSpecified, std::move(keys)};
}
inline Requirement exclude(std::vector<ConfigCodingKey> keys) {
    return {RequirementType::exclude, std::move(keys)};
}
inline Requirement requiredExcluding(std::vector<ConfigCodingKey> keys) {
    return {RequirementType::requiredExcluding, std::move(keys)};
}

/// Checks the requirement of a key. `givenOfListed` is the number of listed keys that were given. Throws
/// ConfigurationError (ValidationError) with the broken rule.
void validate(std::string_view key, bool wasGiven, std::size_t givenOfListed, const Requirement &requirement);

} // namespace velmar
