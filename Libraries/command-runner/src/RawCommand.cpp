#include "RawCommand.h"

#include <Foundation/RegularExpression.h>
#include <Foundation/UnicodeText.h>
#include <command-runner/CompletionError.h>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace velmar {

namespace {

// Never destroyed: queues may still match at exit.
const RegularExpression &tokenPattern() {
    static const auto &pattern =
        *new RegularExpression(R"RE((?<=(\s|\A))("[^"]*"|'[^']*'|[^"\s]+)(?=(\s|$)))RE");
    return pattern;
}

std::string withoutQuotes(std::string_view token) {
    std::string text(token);
    std::erase_if(text, [](char character) { return character == '"' || character == '\''; });
    return text;
}

// Splits a piece into words.
std::vector<std::string> wordsOf(std::string_view piece, std::vector<std::string> &leftOut) {
    std::vector<std::string> words;
    std::size_t end = 0;
    const auto leaveOutUntil = [&](std::size_t start) {
        if (const auto between = UnicodeText::trimmed(piece.substr(end, start - end)); !between.empty()) {
            leftOut.emplace_back(between);
        }
    };
    for (const RegularExpression::Match &match : tokenPattern().matches(piece)) {
        leaveOutUntil(match.range().location);
        end = match.range().end();
        const std::string_view token = UnicodeText::trimmed(match.range().of(piece));
        if (!token.empty()) {
            words.push_back(withoutQuotes(token));
        }
    }
    leaveOutUntil(piece.size());
    return words;
}

} // namespace

RawCommand::RawCommand(std::string_view text) {
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find('|', start), text.size());
        std::vector<std::string> words = wordsOf(text.substr(start, end - start), leftOut);
        if (words.empty()) {
            throw CompletionError(CompletionError::NoProcessesBuiltFromRawCommand{std::string(text)});
        }
        Process &process = processes.emplace_back();
        process.executablePath = std::move(words.front());
        words.erase(words.begin());
        process.arguments = std::move(words);
        start = end + 1;
    }
}

} // namespace velmar
