#pragma once

#include <string>
#include <string_view>

#include <logger/Logger.h>

namespace velmar {

/// What a message of the log is about; its symbol stands before the message.
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

/// The symbol of a subject, one emoji.
[[nodiscard]] std::string_view symbolOf(LogSubject subject);

/// What the application adds to the logger. Any thread; messages as for the logger.
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

/// Warns that a registered variable's value holds other variables. The path is that of its key.
void registeredVariableUsesOtherVariables(std::string_view variable, std::string_view path,
                                          const SourceLocation &where = SourceLocation::current());

} // namespace LoggerExtensions

} // namespace velmar
