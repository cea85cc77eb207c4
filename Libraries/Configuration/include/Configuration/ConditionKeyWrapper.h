#pragma once

#include <Configuration/Decodable.h>
#include <Configuration/KeyWrapper.h>
#include <expressions/Expression.h>

#include <optional>
#include <string>

namespace velmar {

using expressions::Expression;

/// One line of text. What it uses is recorded, names of conditions like those of variables.
template <>
struct Decodable<Expression> {
    static Expression decode(const Decoding &decoding);
    static std::optional<PropertyList> encode(const Expression &expression) {
        return PropertyList(expression.source());
    }
    static std::string plistType() { return "string (boolean expression)"; }
    static ValueDescription describe(Descriptions & /*items*/) { return ValueDescription::text("condition"); }
};

/// Holds a condition, absent where none is given. No holder of its own: a condition is read, recorded and
/// written by what its type means in the file, also where it stands in a book, and the name of a registered
/// condition is an expression like any other, of one variable.
using ConditionKeyWrapper = KeyWrapper<std::optional<Expression>>;

} // namespace velmar
