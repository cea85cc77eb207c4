#include <Configuration/ConditionKeyWrapper.h>

#include <Foundation/LocalizedError.h>

namespace velmar {

Expression Decodable<Expression>::decode(const Decoding &decoding) {
    const std::string *line = decoding.value.string();
    if (line == nullptr) {
        throwWrongType(decoding, plistType());
    }
    const Expression expression = [&] {
        try {
            return Expression(*line);
        } catch (const LocalizedError &error) {
            throwWrongType(decoding, error.errorDescription(), plistType());
        }
    }();
    if (VariableNames variables = expression.variableNames(); !variables.empty()) {
        decoding.context.addVariablesRecord(decoding.path, decoding.value.offset(), std::move(variables),
                                            expression);
    }
    return expression;
}

} // namespace velmar
