#include <expressions/Expression.h>

#include "Plan.h"
#include "Tokeniser.h"

namespace velmar::expressions {

struct Expression::Parsed {
    std::string source;
    Tokeniser tokeniser;
    std::vector<ExpressionElement> elements;
    Plan plan; // refers to the elements

    Parsed(std::string_view line, Tokeniser with)
        : source(line), tokeniser(std::move(with)), elements(tokeniser.elements(line)), plan(elements) {}
};

Expression::Expression(std::string_view line, std::string_view variableNamePattern)
    : parsed_(std::make_shared<Parsed>(line, Tokeniser::withNames(variableNamePattern))) {}

bool Expression::evaluate(const VariableLookup &variables, std::vector<Step> *steps) const {
    return parsed_->plan.run(variables, steps);
}

VariableNames Expression::variableNames() const {
    VariableNames names;
    for (const ExpressionElement &element : elements()) {
        if (const std::string *name = variableOf(element)) {
            names.insert(*name);
        }
    }
    return names;
}

std::string Expression::description() const {
    std::string text;
    bool followsOpening = true;
    for (const ExpressionElement &element : elements()) {
        const auto *bracket = std::get_if<Bracket>(&element);
        if (!followsOpening && (bracket == nullptr || *bracket != Bracket::closing)) {
            text += ' ';
        }
        text += expressions::description(element);
        followsOpening = bracket != nullptr && *bracket == Bracket::opening;
    }
    return text;
}

const std::string &Expression::source() const noexcept {
    return parsed_->source;
}

const std::vector<ExpressionElement> &Expression::elements() const noexcept {
    return parsed_->elements;
}

const std::string &Expression::regexPattern() const noexcept {
    return parsed_->tokeniser.pattern();
}

} // namespace velmar::expressions
