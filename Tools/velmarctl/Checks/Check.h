#pragma once

#include <Checks/UsageWarning.h>

#include <span>
#include <string_view>
#include <vector>

namespace velmar {

struct Configuration;
struct DecodingNotes;
class IdentityAuthority;
class PropertyListValue;

/// An admitted file, as the checks see it. Owns nothing.
struct CheckedFile {
    const PropertyListValue &root;
    const Configuration &configuration; ///< Decoded from the root.
    const DecodingNotes &notes;         ///< Taken while decoding.
    const IdentityAuthority &authority;
};

/// One of the checks of `velmarctl check` that an admitted file goes through.
struct Check {
    std::string_view name; ///< Subject of the warnings, for display; in the plural.
    std::vector<UsageWarning> (*warnings)(const CheckedFile &file);
};

/// Returns all checks, in the order in which they run.
[[nodiscard]] std::span<const Check> allChecks();

} // namespace velmar
