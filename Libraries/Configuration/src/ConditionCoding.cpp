#include <Configuration/ConditionCoding.h>

#include <Foundation/LocalizedError.h>

#include <algorithm>

namespace velmar {

Expression Decodable<Expression>::decode(const Decoding &decoding) {
    const auto line = decoding.value.string();
    if (!line) {
        throwWrongType(decoding, plistType());
    }
    const Expression &expression = [&]() -> const Expression & {
        try {
            return decoding.context.expression(*line);
        } catch (const LocalizedError &error) {
            throwWrongType(decoding, error.errorDescription(), plistType());
        }
    }();
    if (std::ranges::any_of(expression, &expressions::variableOf)) {
        decoding.context.addVariablesRecord(decoding.path, decoding.value, &expression);
    }
    return expression;
}

} // namespace velmar
