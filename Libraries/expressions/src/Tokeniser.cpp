#include "Tokeniser.h"

#include "PlainTokens.h"

#include <expressions/Expression.h>

#include <Foundation/NumberText.h>
#include <Foundation/UnicodeText.h>

#include <cstdint>

namespace velmar::expressions {

namespace {

template <OperatorProtocol T>
void appendCharacters(std::string &characters) {
    // '&' is escaped because "&&" in a character class means intersection.
    constexpr std::string_view escaped = "*?+[(){}^$|\\./=&";
    for (const T &each : T::all()) {
        for (const char character : each.description()) {
            if (escaped.find(character) != std::string_view::npos) {
                characters += '\\';
            }
            characters += character;
        }
    }
}

// A long word that is not an operand is tried from each of its characters. The limit allows 4,000 characters
// in one word, a third of a second; valid expressions of 64 kB need a twentieth of it.
constexpr std::int32_t stepLimit = 1000;

std::string tokenPattern(std::string_view variableNamePattern) {
    static const auto &operators = *new std::string([] {
        std::string characters = "[";
        appendCharacters<Operator>(characters);
        appendCharacters<LogicOperator>(characters);
        return characters + "]+";
    }());
    const std::string operand =
        R"(\(*((true|false)|([0-9\.]+)|("[^"]*")|()" + std::string(variableNamePattern) + R"())\)*)";
    return R"((?<=\s|^)()" + operators + R"()|([\(\)]+)|()" + operand + R"()(?=\s|$))";
}

} // namespace

Tokeniser Tokeniser::withNames(std::string_view variableNamePattern) {
    if (variableNamePattern != Expression::defaultVariableNamePattern) {
        return Tokeniser(variableNamePattern);
    }
    // Never destroyed: queues may still evaluate at exit.
    static const auto &standard = *new Tokeniser(Expression::defaultVariableNamePattern);
    return standard;
}

// Compiles the pattern of names first, so that its errors refer to the caller's text.
Tokeniser::Tokeniser(std::string_view variableNamePattern)
    : hasDefaultNames_(variableNamePattern == Expression::defaultVariableNamePattern),
      names_(variableNamePattern),
      tokens_(tokenPattern(variableNamePattern), {}, stepLimit) {}

std::vector<ExpressionElement> Tokeniser::elements(std::string_view line) const {
    std::vector<ExpressionElement> elements;
    if (const auto tokens = hasDefaultNames_ ? plainTokens(line) : std::nullopt; tokens && !tokens->empty()) {
        elements.reserve(tokens->size());
        for (const std::string_view token : *tokens) {
            append(token, elements);
        }
        return elements;
    }
    std::size_t end = 0;
    for (const RegularExpression::Match &match : tokens_.matches(line)) {
        const TextRange range = match.range();
        const std::string_view gap = line.substr(end, range.location - end);
        if (!UnicodeText::trimmed(gap).empty()) {
            throw ExpressionError(ExpressionErrors::IncorrectElement{std::string(gap)});
        }
        append(range.of(line), elements);
        end = range.end();
    }
    if (elements.empty()) {
        throw ExpressionError(ExpressionErrors::EmptyExpression{});
    }
    return elements;
}

// Removes one bracket at most from each end.
void Tokeniser::append(std::string_view token, std::vector<ExpressionElement> &elements) const {
    const bool isOne = token.size() <= 1;
    if (!isOne && token.starts_with('(')) {
        elements.emplace_back(Bracket::opening);
        token.remove_prefix(1);
    }
    const bool isClosed = !isOne && token.ends_with(')');
    if (isClosed) {
        token.remove_suffix(1);
    }
    elements.push_back(element(token));
    if (isClosed) {
        elements.emplace_back(Bracket::closing);
    }
}

ExpressionElement Tokeniser::element(std::string_view text) const {
    if (const auto comparison = operatorWithText<Operator>(text)) {
        return *comparison;
    }
    if (const auto logic = operatorWithText<LogicOperator>(text)) {
        return *logic;
    }
    if (text == "(") {
        return Bracket::opening;
    }
    if (text == ")") {
        return Bracket::closing;
    }
    return operand(text);
}

Operand Tokeniser::operand(std::string_view text) const {
    if (text.starts_with('"') && text.ends_with('"')) {
        const std::string_view inner = text.size() > 1 ? text.substr(1, text.size() - 2) : std::string_view();
        if (inner.find('"') != std::string_view::npos) {
            throw ExpressionError(ExpressionErrors::InvalidStringQuotation{std::string(text)});
        }
        return {Operand::String{std::string(inner)}};
    }
    if (const auto number = numberOf(std::string(text))) {
        return {*number};
    }
    if (text == "true" || text == "false") {
        return {text == "true"};
    }
    if (hasDefaultNames_ ? isDefaultName(text) : names_.matchesWhole(text)) {
        return {Operand::Variable{std::string(text)}};
    }
    throw ExpressionError(ExpressionErrors::InvalidVariableName{std::string(text)});
}

} // namespace velmar::expressions
