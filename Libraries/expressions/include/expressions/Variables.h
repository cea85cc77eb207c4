#pragma once

#include <expressions/VariableNames.h>

#include <boost/unordered/unordered_flat_map.hpp>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace velmar {

/// A variable's name with its hash, for repeated lookups of the same name. Doesn't own the text.
struct HashedVariableName {
    std::string_view name;
    std::size_t hash;

    explicit HashedVariableName(std::string_view text);
};

/// Hash of a variable's name. Names are equal by canonical equivalence. Hash and equality are transparent: a
/// lookup by std::string_view doesn't allocate for ASCII names.
struct VariableNameHash {
    using is_transparent = void;
    using is_avalanching = void; ///< The map doesn't need to mix the hash again.
    [[nodiscard]] std::size_t operator()(std::string_view name) const;
    [[nodiscard]] std::size_t operator()(const HashedVariableName &name) const noexcept { return name.hash; }
};

struct VariableNameEqual {
    using is_transparent = void;
    [[nodiscard]] bool operator()(std::string_view left, std::string_view right) const {
        return isSame(left, right) || isEquivalent(left, right);
    }
    [[nodiscard]] bool operator()(const HashedVariableName &left, std::string_view right) const {
        return (*this)(left.name, right);
    }

private:
    // Faster than memcmp for short names: compares two overlapping words.
    static bool isSame(std::string_view left, std::string_view right) noexcept {
        const std::size_t size = left.size();
        if (size != right.size()) {
            return false;
        }
        if (size >= 4 && size <= 8) {
            return areWords<std::uint32_t>(left, right);
        }
        if (size > 8 && size <= 16) {
            return areWords<std::uint64_t>(left, right);
        }
        return left == right;
    }
    // Compares the first and the last word of two texts of equal size, between one and two words long.
    template <class Word>
    static bool areWords(std::string_view left, std::string_view right) noexcept {
        const auto word = [](const char *at) {
            Word value = 0;
            std::memcpy(&value, at, sizeof value);
            return value;
        };
        const std::size_t last = left.size() - sizeof(Word);
        return ((word(left.data()) ^ word(right.data())) |
                (word(left.data() + last) ^ word(right.data() + last))) == 0;
    }
    static bool isEquivalent(std::string_view left, std::string_view right);
};

/// Variables and their values. Changing the map invalidates the addresses of values.
using Variables = boost::unordered_flat_map<std::string, std::string, VariableNameHash, VariableNameEqual>;

/// Source of variables for an evaluation. Owns nothing; valid for the duration of the call.
struct VariableLookup {
    const Variables &variables;
    /// Values of named conditions ("true" or "false"), which take precedence over variables. May be null.
    const Variables *named = nullptr;

    VariableLookup(const Variables &all, const Variables *conditions = nullptr) // NOLINT(*-explicit-*)
        : variables(all), named(conditions) {}

    /// Returns the variable's value, or nullptr if there is none.
    [[nodiscard]] const std::string *find(std::string_view name) const { return found(name); }
    [[nodiscard]] const std::string *find(const HashedVariableName &name) const { return found(name); }

private:
    template <class Name>
    const std::string *found(const Name &name) const {
        if (named != nullptr) {
            if (const auto at = named->find(name); at != named->end()) {
                return &at->second;
            }
        }
        const auto at = variables.find(name);
        return at != variables.end() ? &at->second : nullptr;
    }
};

} // namespace velmar
