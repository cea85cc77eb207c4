#pragma once

#include <boost/unordered/unordered_flat_map.hpp>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <set>
#include <string>
#include <string_view>

namespace velmar {

/// A name together with its hash, for whoever looks the same one up again and again. It refers to the text.
struct HashedVariableName {
    std::string_view name;
    std::size_t hash;

    explicit HashedVariableName(std::string_view text);
};

/// Names of variables are equal by canonical equivalence, like all texts that people write. Both functions
/// are transparent: looking up by std::string_view allocates nothing for a name in ASCII.
struct VariableNameHash {
    using is_transparent = void;
    using is_avalanching = void; ///< The map need not mix the hash again.
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
    // Names are short, so that two overlapping words cost less than a call.
    static bool isSame(std::string_view left, std::string_view right) noexcept {
        const std::size_t size = left.size();
        if (size != right.size())
            return false;
        if (size >= 4 && size <= 8)
            return areWords<std::uint32_t>(left, right);
        if (size > 8 && size <= 16)
            return areWords<std::uint64_t>(left, right);
        return left == right;
    }
    // Compares the first and the last word of two texts of one size, of one to two words.
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
    [[nodiscard]] const std::string *find(std::string_view name) const { return found(name); }
    [[nodiscard]] const std::string *find(const HashedVariableName &name) const { return found(name); }

private:
    template <class Name>
    const std::string *found(const Name &name) const {
        if (named != nullptr) {
            if (const auto at = named->find(name); at != named->end())
                return &at->second;
        }
        const auto at = variables.find(name);
        return at != variables.end() ? &at->second : nullptr;
    }
};

} // namespace velmar
