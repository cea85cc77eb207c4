#pragma once

#include <expressions/ExpressionElement.h>
#include <expressions/ExpressionError.h>
#include <expressions/Variables.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmar::expressions {

/// What an evaluation found for one part of an expression: a variable alone, or a comparison.
struct Step {
    std::size_t first = 0;      ///< The index of its first element.
    std::size_t count = 0;      ///< Of elements.
    std::optional<bool> result; ///< Absent if the evaluation failed here.

    bool operator==(const Step &) const = default;
};

/// A condition in one line of text, such as `DEVICE_NAME == "lab" && (ANSWER >= 3 || FLAG)`, parsed once and
/// evaluated as often as variables change. An immutable value: copies share the parsed form, and any number
/// of threads may evaluate it at once.
///
/// The line is taken apart by one regular expression; what stands after its last match is ignored. Evaluating
/// reads every part from left to right, whatever the parts before it give, so that a failure anywhere is a
/// failure of the whole.
class Expression {
public:
    static constexpr std::string_view defaultVariableNamePattern = "[a-zA-Z]{1}[a-zA-Z0-9_-]+";

    /// Throws ExpressionError, and RegularExpressionError where the pattern is not valid or the line is too
    /// much for the engine. The line is UTF-8.
    explicit Expression(std::string_view line,
                        std::string_view variableNamePattern = defaultVariableNamePattern);

    /// Throws ExpressionError. Allocates nothing up to 16 levels of brackets and for ASCII texts. `steps`, if
    /// not null, receives the parts evaluated, in their order, also when it throws.
    bool evaluate(const VariableLookup &variables, std::vector<Step> *steps = nullptr) const;

    /// The names that the expression mentions.
    [[nodiscard]] VariableNames variableNames() const;
    /// The elements with one blank between them and none inside of brackets: `(FLAG == 'on') && COUNT > 2.0`
    [[nodiscard]] std::string description() const;
    /// The line as it was given.
    [[nodiscard]] const std::string &source() const noexcept;
    [[nodiscard]] const std::vector<ExpressionElement> &elements() const noexcept;
    /// The whole pattern that took the line apart.
    [[nodiscard]] const std::string &regexPattern() const noexcept;

    // A collection of its elements.
    [[nodiscard]] auto begin() const noexcept { return elements().begin(); }
    [[nodiscard]] auto end() const noexcept { return elements().end(); }
    [[nodiscard]] std::size_t size() const noexcept { return elements().size(); }
    [[nodiscard]] const ExpressionElement &operator[](std::size_t index) const { return elements()[index]; }

    bool operator==(const Expression &other) const { return elements() == other.elements(); }

private:
    struct Parsed;
    std::shared_ptr<const Parsed> parsed_;
};

} // namespace velmar::expressions
