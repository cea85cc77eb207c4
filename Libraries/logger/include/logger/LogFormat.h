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
///     $D...$d  the time of the call in the enclosed date pattern (see DatePattern)
///     $L  the level string       $M  the message           $X  the context, or nothing
///     $N  the source file's name without folder and extension
///     $F  the function's name                       $l  the line
///     $T  the thread: "main", or its name
///     $C  the level's colour on  $c  colours off
///
/// Other text is printed literally, including a "$D" without "$d". The output of a token is not expanded
/// further.
///
/// A message cannot forge log lines. Control characters except tabs and line feeds are printed as "\x1B". A
/// line of a message that starts with the text before the format's first token ("[Velmar]") is indented by a
/// blank.
class LogFormat {
public:
    explicit LogFormat(std::string_view format);

    /// Appends the line of a record, without a line feed. Not thread-safe.
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
    // Literal start of every line, without trailing blanks.
    std::string head_;
};

} // namespace velmar
