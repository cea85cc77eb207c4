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

/// What is shared by all that goes on while a set of actions is tried: it lives as long as the last of it.
/// Any thread.
class RehearsalRecord {
public:
    /// The stream must live until the rehearsal is over.
    explicit RehearsalRecord(std::ostream &out) : out_(out) {}

    /// Prints a line, whole and at once.
    void line(std::string_view text);
    /// Prints what belongs to an action.
    void detail(std::string_view text);

    /// Takes no more lines: whoever has the stream goes on.
    void close();

    std::atomic<int> madeActions{0};
    std::atomic<int> runningActions{0};
    std::atomic<bool> hasFailed{false};    ///< An action.
    std::atomic<bool> isOver{false};       ///< Nobody holds the completion handler any more.
    std::atomic<bool> hasCompleted{false}; ///< The completion handler was called.
    MainThreadQueue mainQueue;             ///< Of the thread that runs the rehearsal.

    /// Has the main thread look again at where things stand.
    void changed() {
        mainQueue.async([] {});
    }

private:
    std::mutex mutex_;
    std::ostream &out_;
    bool isClosed_ = false;
};

/// An action that says when it starts, how it has ended and how long it took.
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
