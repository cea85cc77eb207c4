#pragma once

#include <Actions/Dispatchable.h>
#include <Dispatch/MainThreadQueue.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <ostream>
#include <string>
#include <string_view>

namespace velmar {

/// State shared by everything that takes part in a rehearsal of an action set; lives as long as its last
/// user. Thread-safe.
class RehearsalRecord {
public:
    /// The stream must stay valid until `close` returns.
    explicit RehearsalRecord(std::ostream &out) : out_(out) {}

    /// Prints a line in one piece and flushes it.
    void line(std::string_view text);
    /// Prints an indented line about an action.
    void detail(std::string_view text);

    /// Ignores all further lines. The stream is not used after this call.
    void close();

    std::atomic<int> madeActions{0};
    std::atomic<int> runningActions{0};
    std::atomic<bool> hasFailed{false};    ///< An action failed.
    std::atomic<bool> isOver{false};       ///< The completion handler was released.
    std::atomic<bool> hasCompleted{false}; ///< The completion handler was called.
    MainThreadQueue mainQueue;             ///< Belongs to the thread that runs the rehearsal.

    /// Wakes the main thread to re-evaluate whether the set is over.
    void changed() {
        mainQueue.async([] {});
    }

private:
    std::mutex mutex_;
    std::ostream &out_;
    bool isClosed_ = false;
};

/// An action that reports its start, its outcome and its duration.
class ReportedAction final : public Dispatchable {
public:
    ReportedAction(std::shared_ptr<Dispatchable> action, std::string name,
                   std::shared_ptr<RehearsalRecord> record);

    [[nodiscard]] const ActionItem &item() const override { return *item_; }
    [[nodiscard]] const SuccessCompletionBlock &successCompletionBlock() const override {
        return successCompletionBlock_;
    }
    void setSuccessCompletionBlock(SuccessCompletionBlock block) override;
    void dispatch() override;

private:
    class Report;

    std::shared_ptr<Dispatchable> action_;
    const ActionItem *item_;
    std::string name_;
    std::shared_ptr<RehearsalRecord> record_;
    SuccessCompletionBlock successCompletionBlock_;
};

} // namespace velmar
