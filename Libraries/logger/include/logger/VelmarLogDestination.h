#pragma once

#include <memory>
#include <span>
#include <string_view>

#include <logger/BaseDestination.h>

namespace velmar {

/// Gives a final destination the application's format and level strings, and forwards each message to it: a
/// line is
/// "[" + display name + "] 14:02:11 ℹ️ > message context", with a trailing blank where there is no
/// context. Level, filters and queue are the decorator's own.
class VelmarLogDestination : public BaseDestination {
public:
    VelmarLogDestination() = delete;
    /// The final destination is new and never null.
    VelmarLogDestination(std::unique_ptr<BaseDestination> finalDestination, std::string_view displayName);

    [[nodiscard]] const BaseDestination &finalDestination() const { return *finalDestination_; }

    [[nodiscard]] bool printsThread() const override { return finalDestination_->printsThread(); }
    void write(std::span<const LogRecord> records) override { finalDestination_->write(records); }

private:
    const std::unique_ptr<BaseDestination> finalDestination_;
};

} // namespace velmar
