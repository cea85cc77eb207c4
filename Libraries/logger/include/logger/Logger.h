#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include <fmt/core.h>

#include <logger/LogLevel.h>
#include <logger/SourceLocation.h>

namespace velmar {

class BaseDestination;
class LogRoutes;

/// The process-wide logger. A message goes to all destinations that log its level, in the order in which they
/// were added. It is passed as a function that is called once per destination, on the caller's thread, before
/// the log call returns:
///
///     Logger::info([&] { return fmt::format("Found configuration file at {}", path); });
///     Logger::error([] { return "An error occurred while retrieving the configuration file"; }, context);
///
/// The function returns a text or any value that fmt can format. A message without computation may be passed
/// as plain text. The context is an optional text after the message ($X). It is copied before the call
/// returns.
///
/// Thread-safe, also during static destruction. Never throws: an exception of a message's function loses that
/// message only. The application adds the destinations; earlier messages are dropped.
class Logger {
public:
    template <class Message>
    static void verbose(Message &&message, std::string_view context = {},
                        const SourceLocation &where = SourceLocation::current()) {
        log(LogLevel::verbose, message, context, where);
    }
    template <class Message>
    static void debug(Message &&message, std::string_view context = {},
                      const SourceLocation &where = SourceLocation::current()) {
        log(LogLevel::debug, message, context, where);
    }
    template <class Message>
    static void info(Message &&message, std::string_view context = {},
                     const SourceLocation &where = SourceLocation::current()) {
        log(LogLevel::info, message, context, where);
    }
    template <class Message>
    static void warning(Message &&message, std::string_view context = {},
                        const SourceLocation &where = SourceLocation::current()) {
        log(LogLevel::warning, message, context, where);
    }
    template <class Message>
    static void error(Message &&message, std::string_view context = {},
                      const SourceLocation &where = SourceLocation::current()) {
        log(LogLevel::error, message, context, where);
    }

    /// Logs with a level known at run time only.
    template <class Message>
    static void log(LogLevel level, Message &&message, std::string_view context = {},
                    const SourceLocation &where = SourceLocation::current()) {
        if (isLogged(level)) {
            deliver(level, MessageSource(message), context, where);
        }
    }

    /// Returns true if the minimum level of any destination accepts the level. Lock-free.
    [[nodiscard]] static bool isLogged(LogLevel level) noexcept {
        return static_cast<std::uint8_t>(level) >= minimumLevel_.load(std::memory_order_relaxed);
    }

    /// Returns the text of a message, calling it if it is a function.
    template <class Message>
    [[nodiscard]] static std::string textOf(Message &&message) {
        if constexpr (std::is_invocable_v<Message &>) {
            return textOf(message());
        } else if constexpr (std::is_convertible_v<Message, std::string>) {
            return std::forward<Message>(message);
        } else if constexpr (std::is_convertible_v<Message, std::string_view>) {
            return std::string(std::string_view(message));
        } else {
            return fmt::format("{}", message);
        }
    }

    /// Appends a destination to the list. Calls that have already begun may not reach it. A destination must
    /// be added only once.
    static void addDestination(std::shared_ptr<BaseDestination> destination);

    /// Removes all destinations. Earlier messages are still written while the process lives.
    static void removeAllDestinations();

    /// Waits until all earlier messages are written, at most for `bound`. Returns false if a destination did
    /// not finish. Must be called at the end of main and before exit(). Other threads may log meanwhile.
    static bool flush(std::chrono::milliseconds bound = std::chrono::seconds(2));

private:
    friend class ScopedDestinations;

    // A type-erased reference to the caller's message.
    class MessageSource {
    public:
        template <class Message>
        explicit MessageSource(Message &message) : message_(&message), make_(&makeFrom<Message>) {}

        [[nodiscard]] std::string operator()() const { return make_(message_); }

    private:
        template <class Message>
        static std::string makeFrom(const void *address) {
            // The constructor took the address of a Message, which may be const.
            return textOf(*static_cast<Message *>(const_cast<void *>(address)));
        }

        const void *message_;
        std::string (*make_)(const void *);
    };

    static void deliver(LogLevel level, MessageSource message, std::string_view context,
                        const SourceLocation &where) noexcept;
    // Replaces the list of destinations and returns the previous one.
    static std::shared_ptr<const LogRoutes> exchange(std::shared_ptr<const LogRoutes> routes);

    // Lowest level that any destination logs; above all levels if there is none.
    static constinit inline std::atomic<std::uint8_t> minimumLevel_{logLevelCount};
};

} // namespace velmar
