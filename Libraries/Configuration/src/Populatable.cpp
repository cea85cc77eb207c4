#include <Configuration/ExpressionError.h>
#include <Configuration/Populatable.h>

#include "VariableReferences.h"

#include <boost/container/small_vector.hpp>
#include <boost/unordered/unordered_flat_set.hpp>

#include <algorithm>

namespace velmar {

namespace {

constexpr std::size_t mostBytes = std::size_t{16} << 20U;
constexpr std::size_t mostReferences = 1'000'000;

/// A population of one text. Iterative, because the variables decide the depth of nesting.
class Population {
public:
    explicit Population(const Variables &variables) : variables_(variables) {}

    std::string of(std::string_view text) && {
        result_.reserve(std::min(text.size() * 2, mostBytes));
        levels_.push_back({nullptr, text, VariableReferences(text)});
        while (!levels_.empty()) {
            Level &level = levels_.back();
            if (const auto reference = level.references.next()) {
                append(reference->before);
                substitute(reference->name, level.text);
            } else {
                append(level.references.rest());
                leave(level);
            }
        }
        return std::move(result_);
    }

private:
    struct Level {
        const Variables::value_type *variable; ///< nullptr for the text itself.
        std::string_view text;
        VariableReferences references;
    };

    void append(std::string_view piece) {
        if (piece.size() > mostBytes - result_.size()) {
            throw ExpressionError(ExpressionErrors::TooLarge{"16 MiB"});
        }
        result_ += piece;
    }

    void substitute(std::string_view name, std::string_view text) {
        count(name);
        const auto variable = variables_.find(name);
        if (variable == variables_.end()) {
            throw ExpressionError(ExpressionErrors::UndefinedVariable{std::string(name), std::string(text)});
        }
        const std::string &value = variable->second;
        if (value.find("${") == std::string::npos) {
            append(value);
            return;
        }
        if (!open_.insert(&*variable).second) {
            throw ExpressionError(ExpressionErrors::CircularReference{std::string(name), trace()});
        }
        levels_.push_back({&*variable, value, VariableReferences(value)});
    }

    /// Counts names as well, since they may be long even if their values are empty.
    void count(std::string_view name) {
        bytesOfNames_ += name.size();
        if (bytesOfNames_ > mostBytes) {
            throw ExpressionError(ExpressionErrors::TooLarge{"16 MiB"});
        }
        if (++references_ > mostReferences) {
            throw ExpressionError(ExpressionErrors::TooLarge{"a million references"});
        }
    }

    void leave(const Level &level) {
        if (level.variable != nullptr) {
            open_.erase(level.variable);
        }
        levels_.pop_back();
    }

    [[nodiscard]] std::vector<std::string> trace() const {
        std::vector<std::string> names;
        for (const Level &level : levels_) {
            if (level.variable != nullptr) {
                names.push_back(level.variable->first);
            }
        }
        return names;
    }

    const Variables &variables_;
    std::string result_;
    boost::container::small_vector<Level, 8> levels_;
    boost::unordered_flat_set<const Variables::value_type *> open_; ///< The variables of the levels.
    std::size_t references_ = 0;
    std::size_t bytesOfNames_ = 0;
};

} // namespace

VariableNames usedVariables(std::string_view text) {
    VariableNames names;
    VariableReferences references(text);
    while (const auto reference = references.next()) {
        names.emplace(reference->name);
    }
    return names;
}

VariableNames involvedVariables(std::string_view text, const Variables &variables) {
    VariableNames names;
    std::size_t bytes = 0;
    std::vector<std::string_view> open{text};
    // Read each value once, even if its name occurs in different normal forms.
    boost::unordered_flat_set<const Variables::value_type *> read;
    while (!open.empty()) {
        VariableReferences references(open.back());
        open.pop_back();
        while (const auto reference = references.next()) {
            bytes += reference->name.size();
            if (bytes > mostBytes || names.size() > mostReferences) {
                return names; // populated() refuses such a text too.
            }
            if (names.contains(reference->name)) {
                continue;
            }
            names.emplace(reference->name);
            const auto variable = variables.find(reference->name);
            if (variable != variables.end() && read.insert(&*variable).second) {
                open.emplace_back(variable->second);
            }
        }
    }
    return names;
}

std::string populated(std::string_view text, const Variables &variables) {
    return VariableReferences(text).next() ? Population(variables).of(text) : std::string(text);
}

std::string_view bareVariableName(std::string_view name) noexcept {
    if (name.starts_with("${")) {
        name.remove_prefix(2);
    }
    if (name.ends_with('}')) {
        name.remove_suffix(1);
    }
    return name;
}

} // namespace velmar
