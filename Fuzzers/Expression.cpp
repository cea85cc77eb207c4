// Fuzzes the evaluation of an expression: the outcome is the same with and without recorded steps. Input:
// lines NAME=VALUE, an empty line, and the expression.
#include "../Libraries/expressions/Tests/Outcome.h"

#include <Foundation/NumberText.h>
#include <Foundation/RegularExpression.h>

#include <cstdint>
#include <cstdlib>

using namespace velmar;
using namespace velmar::expressions;

static void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

static Variables takeVariables(std::string_view &text) {
    Variables variables;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (line.empty()) {
            break;
        }
        const std::size_t equals = std::min(line.find('='), line.size() - 1);
        variables.insert_or_assign(std::string(line.substr(0, equals)), std::string(line.substr(equals + 1)));
    }
    return variables;
}

// Returns the elements as source text, or an empty text if an element has no literal form.
static std::string lineOf(const Expression &expression) {
    std::string line;
    for (const ExpressionElement &element : expression) {
        const auto *operand = std::get_if<Operand>(&element);
        const auto *string = operand != nullptr ? std::get_if<Operand::String>(&operand->value) : nullptr;
        const std::string text = string != nullptr ? '"' + string->text + '"' : description(element);
        // Numbers with an exponent, infinity and NaN have no literal.
        if (operand != nullptr && std::holds_alternative<double>(operand->value) &&
            text.find_first_not_of("0123456789.") != std::string::npos) {
            return {};
        }
        line += text + ' ';
    }
    return line;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size) {
    std::string_view text(reinterpret_cast<const char *>(bytes), size);
    const Variables variables = takeVariables(text);
    try {
        const Expression expression(text);
        require(expression.size() > 0 && !expression.description().empty());
        const std::string outcome = outcomeOf([&] { return expression.evaluate(variables); });
        std::vector<Step> steps;
        require(outcome == outcomeOf([&] { return expression.evaluate(variables, &steps); }));
        for (const Step &step : steps) {
            require(step.count > 0 && step.first + step.count <= expression.size());
        }
        if (const std::string line = lineOf(expression); !line.empty()) {
            require(Expression(line) == expression);
        }
    } catch (const ExpressionError &error) {
        require(!error.errorDescription().empty());
    } catch (const RegularExpressionError &error) {
        require(error.as<RegularExpressionError::StepLimitReached>() != nullptr);
    }
    return 0;
}
