#pragma once

#include <expressions/Operator.h>

#include <string>
#include <variant>

namespace velmar::expressions {

enum class Bracket { opening, closing };

/// A variable or a literal.
struct Operand {
    struct Variable {
        std::string name;
        bool operator==(const Variable &other) const;
    };
    struct String {
        std::string text; ///< Without quotes.
        bool operator==(const String &other) const;
    };

    std::variant<Variable, String, double, bool> value;

    /// Returns the variable's name, or nullptr for a literal.
    [[nodiscard]] const std::string *variable() const noexcept;

    /// Compares names and texts by canonical equivalence.
    bool operator==(const Operand &) const = default;
};

using ExpressionElement = std::variant<Operator, LogicOperator, Bracket, Operand>;

/// Returns the variable's name, or nullptr if the element is not a variable.
[[nodiscard]] const std::string *variableOf(const ExpressionElement &element) noexcept;

/// Returns the source form of an element: "&&", "(", a variable's name, 'text', 2.0, true
[[nodiscard]] std::string description(const Operand &operand);
[[nodiscard]] std::string description(const ExpressionElement &element);

} // namespace velmar::expressions
