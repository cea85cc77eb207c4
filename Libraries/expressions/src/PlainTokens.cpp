#include "PlainTokens.h"

#include <expressions/Operator.h>

#include <algorithm>
#include <bitset>
#include <cstddef>

namespace velmar::expressions {

namespace {

using Characters = std::bitset<128>;

bool holds(const Characters &characters, char character) noexcept {
    const auto code = static_cast<unsigned char>(character);
    return code < characters.size() && characters[code];
}

const Characters &operatorCharacters() {
    static const Characters all = [] {
        Characters characters;
        const auto add = [&](std::string_view text) {
            for (const char character : text) {
                characters.set(static_cast<unsigned char>(character));
            }
        };
        for (const Operator &each : Operator::all()) {
            add(each.description());
        }
        for (const LogicOperator &each : LogicOperator::all()) {
            add(each.description());
        }
        return characters;
    }();
    return all;
}

bool isLetter(char character) noexcept {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}
bool isDigit(char character) noexcept {
    return character >= '0' && character <= '9';
}
bool isBracket(char character) noexcept {
    return character == '(' || character == ')';
}

// Returns the length of the leading run of characters for which `takes` returns true.
template <class Takes>
std::size_t runOf(std::string_view text, const Takes &takes) {
    const auto end = std::ranges::find_if_not(text, takes);
    return static_cast<std::size_t>(end - text.begin());
}

// Returns the length of the operand at the start of a text, without closing brackets; 0 if there is none.
std::size_t operandLength(std::string_view text) {
    if (text.starts_with('"')) {
        const std::size_t end = text.find('"', 1);
        return end == std::string_view::npos ? 0 : end + 1;
    }
    const std::string_view word = text.substr(0, text.find_first_of(" )"));
    const bool isNumber =
        !word.empty() && runOf(word, [](char c) { return isDigit(c) || c == '.'; }) == word.size();
    return isNumber || isDefaultName(word) ? word.size() : 0;
}

} // namespace

bool isDefaultName(std::string_view text) noexcept {
    return text.size() >= 2 && isLetter(text.front()) && std::ranges::all_of(text, [](char character) {
               return isLetter(character) || isDigit(character) || character == '_' || character == '-';
           });
}

std::optional<std::vector<std::string_view>> plainTokens(std::string_view line) {
    if (std::ranges::any_of(line, [](char character) { return static_cast<signed char>(character) < 0; })) {
        return std::nullopt;
    }
    std::vector<std::string_view> tokens;
    const auto take = [&](std::size_t length) {
        tokens.push_back(line.substr(0, length));
        line.remove_prefix(length);
    };
    const auto isAtEndOfWord = [&] { return line.empty() || line.front() == ' '; };
    for (;;) {
        line.remove_prefix(runOf(line, [](char character) { return character == ' '; }));
        if (line.empty()) {
            return tokens;
        }
        const auto &operators = operatorCharacters();
        if (const std::size_t length = runOf(line, [&](char c) { return holds(operators, c); }); length > 0) {
            take(length);
        } else {
            // Brackets before an operand are a separate token; brackets after it belong to its token.
            if (const std::size_t brackets = runOf(line, isBracket); brackets > 0) {
                take(brackets);
            }
            if (!isAtEndOfWord()) {
                const std::size_t operand = operandLength(line);
                if (operand == 0) {
                    return std::nullopt;
                }
                take(operand + runOf(line.substr(operand), [](char c) { return c == ')'; }));
            }
        }
        if (!isAtEndOfWord()) {
            return std::nullopt;
        }
    }
}

} // namespace velmar::expressions
