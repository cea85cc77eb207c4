#pragma once

#include <chrono>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include <logger/DestinationSettings.h>
#include <logger/LogFormat.h>
#include <logger/LogLevel.h>
#include <logger/LogRecord.h>
#include <logger/SourceLocation.h>

namespace velmar {

/// Base class of all destinations: turns messages into lines. Owned by the logger's list and by the thread of
/// its queue, which may be the last to let go of it. Once it was added its settings never change.
class BaseDestination {
public:
    explicit BaseDestination(DestinationSettings settings = {});
    virtual ~BaseDestination() = default;
    BaseDestination(const BaseDestination &) = delete;
    BaseDestination &operator=(const BaseDestination &) = delete;

    [[nodiscard]] const DestinationSettings &settings() const { return settings_; }
    /// When the destination was made.
    [[nodiscard]] std::chrono::system_clock::time_point startDate() const { return startDate_; }

    /// Replaces the format and level strings. Only before the destination is added.
    void setFormat(std::string format, LevelTexts levelString);

    /// Whether a message is to be logged here. Any thread.
    [[nodiscard]] bool shouldBeLogged(LogLevel level, const SourceLocation &where) const;
    /// Whether records need the name of the thread.
    [[nodiscard]] virtual bool printsThread() const { return formatter_.printsThread(); }

    /// Writes messages in their order. Calls never overlap; they come from the destination's queue, or from
    /// the callers' threads where it is not asynchronous. It must not log itself; what it throws loses the
    /// batch.
    virtual void write(std::span<const LogRecord> records) = 0;

protected:
    /// Gives the records' lines, each with its line feed, several at a time, in their order. `colored` tells
    /// whether $C and $c print anything.
    void formatLines(std::span<const LogRecord> records, bool colored,
                     const std::function<void(std::string_view lines)> &output) const;
    /// Tells on standard error why lines were lost, where the settings ask for it.
    void reportLoss(std::string_view reason) const;

private:
    DestinationSettings settings_;
    LogFormat formatter_;
    std::chrono::system_clock::time_point startDate_ = std::chrono::system_clock::now();
};

} // namespace velmar
