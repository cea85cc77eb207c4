#pragma once

#include <Configuration/ConditionKeyWrapper.h>
#include <Configuration/Decodable.h>
#include <expressions/Expression.h>

namespace velmar {

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

} // namespace velmar
