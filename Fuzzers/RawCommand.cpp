// Fuzzes the parsing of a raw command against a naive implementation of the rules. A piece without words is
// refused.
#include "../Libraries/command-runner/src/RawCommand.h"

#include <Foundation/RegularExpression.h>
#include <Foundation/UnicodeText.h>
#include <command-runner/CompletionError.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

using namespace velmar;

static void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

// Returns the length of the white space character at the start of the text, or 0.
static std::size_t blankAt(std::string_view text) {
    static constexpr std::array blanks = {
        " ",      "\t",     "\n",     "\v",     "\f",     "\r",     "\u0085", "\u00A0", "\u1680",
        "\u2000", "\u2001", "\u2002", "\u2003", "\u2004", "\u2005", "\u2006", "\u2007", "\u2008",
        "\u2009", "\u200A", "\u2028", "\u2029", "\u202F", "\u205F", "\u3000"};
    const auto *found =
        std::ranges::find_if(blanks, [&](const char *blank) { return text.starts_with(blank); });
    return found == blanks.end() ? 0 : std::string_view(*found).size();
}

// Returns whether a word may end before the text.
static bool isEnd(std::string_view text) {
    return text.empty() || blankAt(text) > 0;
}

// Returns the length of the word at the start of the text, or 0.
static std::size_t wordAt(std::string_view text) {
    for (const char quote : {'"', '\''}) {
        const std::size_t end = text.starts_with(quote) ? text.find(quote, 1) : std::string_view::npos;
        if (end != std::string_view::npos && isEnd(text.substr(end + 1))) {
            return end + 1;
        }
    }
    std::size_t length = 0;
    while (length < text.size() && text[length] != '"' && blankAt(text.substr(length)) == 0) {
        ++length;
    }
    for (; length > 0 && !isEnd(text.substr(length)); --length) {
    }
    return length;
}

static std::vector<std::string> naiveWords(std::string_view piece) {
    std::vector<std::string> words;
    bool mayBegin = true;
    while (!piece.empty()) {
        std::size_t length = mayBegin ? wordAt(piece) : 0;
        if (length > 0) {
            std::string word(UnicodeText::trimmed(piece.substr(0, length)));
            const bool isWord = !word.empty();
            std::erase(word, '"');
            std::erase(word, '\'');
            if (isWord) {
                words.push_back(std::move(word));
            }
            mayBegin = false;
        } else {
            length = blankAt(piece);
            mayBegin = length > 0;
            length = std::max<std::size_t>(length, 1);
        }
        piece.remove_prefix(length);
    }
    return words;
}

// Returns nullopt if a piece has no words.
static std::optional<std::vector<Process>> naiveProcesses(std::string_view text) {
    std::vector<Process> processes;
    for (bool isLast = false; !isLast;) {
        const std::size_t end = text.find('|');
        isLast = end == std::string_view::npos;
        std::vector<std::string> words = naiveWords(text.substr(0, end));
        if (words.empty()) {
            return std::nullopt;
        }
        processes.push_back({words.front(), {words.begin() + 1, words.end()}});
        text.remove_prefix(isLast ? text.size() : end + 1);
    }
    return processes;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char *>(bytes), size);
    // The pattern treats all invalid bytes alike, the naive implementation doesn't: no comparison.
    if (!UnicodeText::isValidUtf8(text)) {
        try {
            const RawCommand command(text);
            require(!command.processes.empty());
        } catch (const CompletionError &) {
        }
        return 0;
    }
    const auto expected = naiveProcesses(text);
    try {
        const RawCommand command(text);
        require(expected == command.processes);
        for (const std::string &part : command.leftOut) {
            require(!part.empty() && text.find(part) != std::string_view::npos);
        }
    } catch (const CompletionError &error) {
        require(!expected && error.as<CompletionError::NoProcessesBuiltFromRawCommand>()->command == text);
    }
    return 0;
}
