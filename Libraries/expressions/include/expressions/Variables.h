#pragma once

#include <boost/unordered/unordered_flat_map.hpp>

#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <string_view>

namespace velmar {

/// Names of variables are equal by canonical equivalence, like all texts that people write. Both functions
/// are transparent: looking up by std::string_view allocates nothing for a name in ASCII.
struct VariableNameHash {
    using is_transparent = void;
    using is_avalanching = void; ///< The map need not mix the hash again.
    [[nodiscard]] std::size_t operator()(std::string_view name) const;
};

struct VariableNameEqual {
    using is_transparent = void;
    [[nodiscard]] bool operator()(std::string_view left, std::string_view right) const {
        return left == right || isEquivalent(left, right);
    }

private:
    static bool isEquivalent(std::string_view left, std::string_view right);
};

/// Variables with their values. A value's address holds until the map is changed.
using Variables = boost::unordered_flat_map<std::string, std::string, VariableNameHash, VariableNameEqual>;

using VariableNames = std::set<std::string, std::less<>>;

/// Where an evaluation looks for the values of variables. It owns nothing and lives as long as the call that
/// it is passed to.
struct VariableLookup {
    const Variables &variables;
    /// Values of named conditions ("true" or "false"), which stand before a variable of the same name; may be
    /// null.
    const Variables *named = nullptr;

    VariableLookup(const Variables &all, const Variables *conditions = nullptr) // NOLINT(*-explicit-*)
        : variables(all), named(conditions) {}

    /// The value of a variable, null if there is none of that name.
    [[nodiscard]] const std::string *find(std::string_view name) const noexcept;
};

} // namespace velmar
