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

/// Base class of destinations: filters messages and formats lines. Shared by the logger's list and the thread
/// of its queue, either of which may destroy it. The settings don't change once it is added to the logger.
class BaseDestination {
public:
    explicit BaseDestination(DestinationSettings settings = {});
    virtual ~BaseDestination() = default;
    BaseDestination(const BaseDestination &) = delete;
    BaseDestination &operator=(const BaseDestination &) = delete;

    [[nodiscard]] const DestinationSettings &settings() const { return settings_; }
    /// Returns the time of construction.
    [[nodiscard]] std::chrono::system_clock::time_point startDate() const { return startDate_; }

    /// Replaces the format and the level strings. Must be called before the destination is added.
    void setFormat(std::string format, LevelTexts levelString);

    /// Returns true if the level and the filters accept a message. Thread-safe.
    [[nodiscard]] bool shouldBeLogged(LogLevel level, const SourceLocation &where) const;
    /// Returns true if records need the name of the thread.
    [[nodiscard]] virtual bool printsThread() const { return formatter_.printsThread(); }

    /// Writes messages in order. Calls never overlap. They come from the destination's queue, or from the
    /// callers' threads if it is not asynchronous. Must not log. An exception loses the batch.
    virtual void write(std::span<const LogRecord> records) = 0;

protected:
    /// Passes the records' lines to `output` in order, several at a time, each with its line feed. `colored`
    /// enables $C and $c.
    void formatLines(std::span<const LogRecord> records, bool colored,
                     const std::function<void(std::string_view lines)> &output) const;
    /// Reports the reason of lost lines on standard error if the settings enable it.
    void reportLoss(std::string_view reason) const;

private:
    DestinationSettings settings_;
    LogFormat formatter_;
    std::chrono::system_clock::time_point startDate_ = std::chrono::system_clock::now();
};

} // namespace velmar
