#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <logger/DatePattern.h>
#include <logger/DestinationSettings.h>
#include <logger/LogRecord.h>

namespace velmar {

/// A line format, parsed once:
///
///     $D...$d  the time of the call in the date pattern in between (see DatePattern)
///     $L  the level string       $M  the message           $X  the context, or nothing
///     $N  the source file's name without folder and extension
///     $F  the function's name                       $l  the line
///     $T  the thread: "main", or its name
///     $C  the level's colour on  $c  colours off
///
/// Any other text is printed as it stands, a "$D" without its "$d" too. What a token prints is not expanded
/// again.
///
/// No message looks like the work of others: control characters, but for tabs and line feeds, are printed as
/// "\x1B", and a line feed is followed by a blank where the line behind it would begin as the format does,
/// with the text before its first token ("[Velmar]").
class LogFormat {
public:
    explicit LogFormat(std::string_view format);

    /// Appends the line of a record, without a line feed. Not to be called for one format by two threads at
    /// once.
    void append(std::string &line, const LogRecord &record, const DestinationSettings &settings,
                bool colored) const;

    [[nodiscard]] bool printsThread() const;

private:
    enum class Token { level, message, context, file, function, line, thread, colorOn, colorOff };
    using Piece = std::variant<std::string, DatePattern, Token>;

    static std::optional<Token> tokenOf(char letter);
    static void appendToken(std::string &line, Token token, const LogRecord &record,
                            const DestinationSettings &settings, bool colored);
    void indentContinuations(std::string &line, std::size_t start) const;

    std::vector<Piece> pieces_;
    // What every line begins with, without the blanks at its end.
    std::string head_;
};

} // namespace velmar
