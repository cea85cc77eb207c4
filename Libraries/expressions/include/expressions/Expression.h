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

/// The evaluation of one part of an expression: a single variable or a comparison.
struct Step {
    std::size_t first = 0;      ///< Index of its first element.
    std::size_t count = 0;      ///< Number of elements.
    std::optional<bool> result; ///< Absent if the evaluation failed in this part.

    bool operator==(const Step &) const = default;
};

/// A condition in one line of text, such as `DEVICE_NAME == "lab" && (ANSWER >= 3 || FLAG)`, parsed once and
/// evaluated many times. An immutable value: copies share the parsed form. Thread-safe.
///
/// A regular expression splits the line into elements; text after its last match is ignored. Every part is
/// evaluated from left to right, without short-circuit, so that an error in any part is an error of the
/// expression.
class Expression {
public:
    static constexpr std::string_view defaultVariableNamePattern = "[a-zA-Z]{1}[a-zA-Z0-9_-]+";

    /// Parses a UTF-8 line. Throws ExpressionError, or RegularExpressionError if the pattern is invalid or
    /// the line exceeds the engine's limits.
    explicit Expression(std::string_view line,
                        std::string_view variableNamePattern = defaultVariableNamePattern);

    /// Returns the value for these variables. Allocates nothing up to 16 levels of brackets and for ASCII
    /// texts. `steps`, if not null, receives the evaluated parts in order, even if the function throws.
    /// Throws ExpressionError.
    bool evaluate(const VariableLookup &variables, std::vector<Step> *steps = nullptr) const;

    /// Returns the names of all variables in the expression.
    [[nodiscard]] VariableNames variableNames() const;
    /// Returns the elements, separated by blanks except inside of brackets: `(FLAG == 'on') && COUNT > 2.0`
    [[nodiscard]] std::string description() const;
    /// Returns the line as given to the constructor.
    [[nodiscard]] const std::string &source() const noexcept;
    [[nodiscard]] const std::vector<ExpressionElement> &elements() const noexcept;
    /// Returns the complete pattern that splits the line.
    [[nodiscard]] const std::string &regexPattern() const noexcept;

    // Range access to the elements.
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
