#include <Configuration/ConditionKeyWrapper.h>

#include <Foundation/LocalizedError.h>

namespace velmar {

Expression Decodable<Expression>::decode(const Decoding &decoding) {
    const std::string *line = decoding.value.string();
    if (line == nullptr) {
        throwWrongType(decoding, plistType());
    }
    try {
        Expression expression(*line);
        if (VariableNames variables = expression.variableNames(); !variables.empty()) {
            decoding.context.addVariablesRecord(
                {std::move(variables), decoding.path.text(), decoding.value.offset(), expression});
        }
        return expression;
    } catch (const LocalizedError &error) {
        throwWrongType(decoding, error.errorDescription(), plistType());
    }
}

} // namespace velmar
