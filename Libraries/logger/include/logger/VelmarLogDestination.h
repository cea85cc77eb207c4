#pragma once

#include <memory>
#include <span>
#include <string_view>

#include <logger/BaseDestination.h>

namespace velmar {

/// A decorator that gives a destination the application's format and level strings and forwards messages to
/// it. A line is "[" + display name + "] 14:02:11 ℹ️ > message context", with a trailing blank if
/// there is no context. Level, filters and queue are those of the decorator.
class VelmarLogDestination : public BaseDestination {
public:
    VelmarLogDestination() = delete;
    /// `finalDestination` must not be null.
    VelmarLogDestination(std::unique_ptr<BaseDestination> finalDestination, std::string_view displayName);

    [[nodiscard]] const BaseDestination &finalDestination() const { return *finalDestination_; }

    [[nodiscard]] bool printsThread() const override { return finalDestination_->printsThread(); }
    void write(std::span<const LogRecord> records) override { finalDestination_->write(records); }

private:
    const std::unique_ptr<BaseDestination> finalDestination_;
};

} // namespace velmar
