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
        std::string text; ///< Without its quotes.
        bool operator==(const String &other) const;
    };

    std::variant<Variable, String, double, bool> value;

    /// The name of the variable, null for a literal.
    [[nodiscard]] const std::string *variable() const noexcept;

    /// Names and texts are equal by canonical equivalence.
    bool operator==(const Operand &) const = default;
};

using ExpressionElement = std::variant<Operator, LogicOperator, Bracket, Operand>;

/// The name of the variable that an element is, null for any other.
[[nodiscard]] const std::string *variableOf(const ExpressionElement &element) noexcept;

/// "&&", "(", a variable's name, 'text', 2.0, true
[[nodiscard]] std::string description(const Operand &operand);
[[nodiscard]] std::string description(const ExpressionElement &element);

} // namespace velmar::expressions
