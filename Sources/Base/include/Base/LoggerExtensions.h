#pragma once

#include <string>
#include <string_view>

#include <logger/Logger.h>

namespace velmar {

/// Subject of a log message. Its symbol precedes the message.
enum class LogSubject {
    configuration,
    variables,
    actions,
    monitors,
    installationLogParser,
    requests,
    window,
    termination,
};

/// Returns the symbol of a subject, one emoji.
[[nodiscard]] std::string_view symbolOf(LogSubject subject);

/// Log functions that add the symbol of the subject. They take the same messages as Logger. Thread-safe.
namespace LoggerExtensions {

[[nodiscard]] std::string withSymbol(LogSubject about, std::string_view message);

template <class Message>
void info(LogSubject about, Message &&message, std::string_view context = {},
          const SourceLocation &where = SourceLocation::current()) {
    Logger::info([&] { return withSymbol(about, Logger::textOf(message)); }, context, where);
}

template <class Message>
void warning(LogSubject about, Message &&message, std::string_view context = {},
             const SourceLocation &where = SourceLocation::current()) {
    Logger::warning([&] { return withSymbol(about, Logger::textOf(message)); }, context, where);
}

template <class Message>
void error(LogSubject about, Message &&message, std::string_view context = {},
           const SourceLocation &where = SourceLocation::current()) {
    Logger::error([&] { return withSymbol(about, Logger::textOf(message)); }, context, where);
}

/// Logs a warning that the value of a registered variable refers to other variables. `path` is the dotted
/// path of its key.
void registeredVariableUsesOtherVariables(std::string_view variable, std::string_view path,
                                          const SourceLocation &where = SourceLocation::current());

} // namespace LoggerExtensions

} // namespace velmar
