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

/// The process-wide logger. A message goes to every destination that logs its level, in the order in which
/// they were added; it is given as a function and made once for each of them, on the caller's thread at the
/// time of the call:
///
///     Logger::info([&] { return fmt::format("Found configuration file at {}", path); });
///     Logger::error([] { return "An error occurred while retrieving the configuration file"; }, context);
///
/// The function gives a text or whatever fmt can print. A plain text may stand in its place where nothing is
/// computed. The context is an optional text behind the message ($X); it is read before the call returns.
///
/// Any thread, at any time of the process, its static destruction included; never throws: what a message's
/// function throws loses that message alone. The application installs the destinations; what is logged before
/// is dropped.
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

    /// The same for a level that is known at run time only.
    template <class Message>
    static void log(LogLevel level, Message &&message, std::string_view context = {},
                    const SourceLocation &where = SourceLocation::current()) {
        if (isLogged(level)) {
            deliver(level, MessageSource(message), context, where);
        }
    }

    /// Whether some destination's minimum level lets the level pass. Takes no lock.
    [[nodiscard]] static bool isLogged(LogLevel level) noexcept {
        return static_cast<std::uint8_t>(level) >= minimumLevel_.load(std::memory_order_relaxed);
    }

    /// The text of a message: what its function gives, or itself.
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

    /// Appends a destination to the list; messages of calls that began before may not reach it. A destination
    /// stands in the list once.
    static void addDestination(std::shared_ptr<BaseDestination> destination);

    /// Empties the list. What was logged before is still written, as long as the process lives.
    static void removeAllDestinations();

    /// Waits until everything logged before the call was written, at most for the bound. False if a
    /// destination did not get that far. To be called at the end of main and before exit(); logging may go on
    /// during and after.
    static bool flush(std::chrono::milliseconds bound = std::chrono::seconds(2));

private:
    friend class ScopedDestinations;

    // A reference to the caller's message, whatever its type.
    class MessageSource {
    public:
        template <class Message>
        explicit MessageSource(Message &message) : message_(&message), make_(&makeFrom<Message>) {}

        [[nodiscard]] std::string operator()() const { return make_(message_); }

    private:
        template <class Message>
        static std::string makeFrom(const void *address) {
            // Made from a reference to Message, const or not, in the constructor.
            return textOf(*static_cast<Message *>(const_cast<void *>(address)));
        }

        const void *message_;
        std::string (*make_)(const void *);
    };

    static void deliver(LogLevel level, MessageSource message, std::string_view context,
                        const SourceLocation &where) noexcept;
    // Puts another list in place of the present one, which is returned.
    static std::shared_ptr<const LogRoutes> exchange(std::shared_ptr<const LogRoutes> routes);

    // The lowest level that some destination logs; above all levels while there is none.
    static constinit inline std::atomic<std::uint8_t> minimumLevel_{logLevelCount};
};

} // namespace velmar
