#pragma once

#include <Configuration/ConditionKeyWrapper.h>
#include <Configuration/Decodable.h>
#include <expressions/Expression.h>

namespace velmar {

/// A condition in one line of text. Records the names that it uses, both of variables and of other
/// conditions.
template <>
struct Decodable<Expression> {
    static Expression decode(const Decoding &decoding);
    static std::optional<PropertyList> encode(const Expression &expression) {
        return PropertyList(expression.source());
    }
    static std::string plistType() { return "string (boolean expression)"; }
    static ValueDescription describe(Descriptions & /*items*/) { return ValueDescription::text("condition"); }
};

} // namespace velmar
