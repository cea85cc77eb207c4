#include <ReportedAction.h>

#include <PrintableText.h>

#include <fmt/format.h>

#include <chrono>
#include <utility>

namespace velmar {

void RehearsalRecord::line(std::string_view text) {
    const std::lock_guard lock(mutex_);
    if (!isClosed_) {
        out_ << printable(text, "\n      ") << std::endl; // The next line may come much later.
    }
}

void RehearsalRecord::detail(std::string_view text) {
    line(fmt::format("    {}", text));
}

void RehearsalRecord::close() {
    const std::lock_guard lock(mutex_);
    isClosed_ = true;
}

/// Lives as long as its action. An action that ends without calling its block has not been run.
class ReportedAction::Report {
public:
    Report(std::string name, SuccessCompletionBlock block, std::shared_ptr<RehearsalRecord> record)
        : name_(std::move(name)), block_(std::move(block)), record_(std::move(record)) {
        ++record_->runningActions;
        record_->line(fmt::format("{}: started", name_));
    }
    Report(const Report &) = delete;
    Report &operator=(const Report &) = delete;

    ~Report() {
        if (!hasTold_) {
            record_->line(fmt::format("{}: not run, for its condition", name_));
        }
        // Decremented last, after the next action of a chain has started: a chain without a running action
        // has stopped.
        --record_->runningActions;
        record_->changed();
    }

    void tell(bool success) {
        hasTold_ = true;
        const std::chrono::duration<double, std::milli> duration = std::chrono::steady_clock::now() - start_;
        record_->line(
            fmt::format("{}: {} after {:.1f} ms", name_, success ? "succeeded" : "failed", duration.count()));
        if (!success) {
            record_->hasFailed = true;
        }
        if (const auto block = std::exchange(block_, nullptr)) {
            block(success);
        }
    }

private:
    std::string name_;
    SuccessCompletionBlock block_;
    std::shared_ptr<RehearsalRecord> record_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    bool hasTold_ = false;
};

ReportedAction::ReportedAction(std::shared_ptr<Dispatchable> action, std::string name,
                               std::shared_ptr<RehearsalRecord> record)
    : action_(std::move(action)),
      item_(&action_->item()),
      name_(std::move(name)),
      record_(std::move(record)) {
    ++record_->madeActions;
}

void ReportedAction::setSuccessCompletionBlock(SuccessCompletionBlock block) {
    successCompletionBlock_ = std::move(block);
}

void ReportedAction::dispatch() {
    auto report = std::make_shared<Report>(name_, std::move(successCompletionBlock_), record_);
    action_->setSuccessCompletionBlock([report](bool success) { report->tell(success); });
    report.reset();
    std::exchange(action_, nullptr)->dispatch();
}

} // namespace velmar
