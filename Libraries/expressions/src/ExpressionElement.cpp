#include <expressions/ExpressionElement.h>

#include "Overloaded.h"

#include <Foundation/NumberText.h>
#include <Foundation/UnicodeText.h>

namespace velmar::expressions {

bool Operand::Variable::operator==(const Variable &other) const {
    return UnicodeText::isEqual(name, other.name);
}

bool Operand::String::operator==(const String &other) const {
    return UnicodeText::isEqual(text, other.text);
}

const std::string *Operand::variable() const noexcept {
    const auto *found = std::get_if<Variable>(&value);
    return found != nullptr ? &found->name : nullptr;
}

const std::string *variableOf(const ExpressionElement &element) noexcept {
    const auto *operand = std::get_if<Operand>(&element);
    return operand != nullptr ? operand->variable() : nullptr;
}

std::string description(const Operand &operand) {
    return std::visit(Overloaded{
                          [](const Operand::Variable &variable) { return variable.name; },
                          [](const Operand::String &string) { return "'" + string.text + "'"; },
                          [](double number) { return textOf(number); },
                          [](bool boolean) { return std::string(boolean ? "true" : "false"); },
                      },
                      operand.value);
}

std::string description(const ExpressionElement &element) {
    return std::visit(
        Overloaded{
            [](const OperatorProtocol auto &each) { return std::string(each.description()); },
            [](Bracket bracket) { return std::string(bracket == Bracket::opening ? "(" : ")"); },
            [](const Operand &operand) { return description(operand); },
        },
        element);
}

} // namespace velmar::expressions
