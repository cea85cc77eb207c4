#pragma once

#include <Interaction/AlertPresenter.h>

#include <deque>
#include <set>
#include <stdexcept>
#include <utility>
#include <vector>

namespace velmar {

/// A fake that records alerts; the test answers them.
class TestAlertPresenter final : public AlertPresenter {
public:
    std::set<std::string> readableIcons; ///< Paths of readable icons.
    std::size_t modalAnswer = 0;         ///< Answer of runModal().
    std::vector<Alert> alerts;           ///< All alerts, in the order of the calls.

    /// Answers the oldest waiting alert. Throws std::logic_error if there is none.
    void answer(std::size_t button) {
        if (waiting_.empty()) {
            throw std::logic_error("no alert waits");
        }
        const Completion completion = std::move(waiting_.front());
        waiting_.pop_front();
        completion(button);
    }
    [[nodiscard]] std::size_t waiting() const noexcept { return waiting_.size(); }

    [[nodiscard]] std::shared_ptr<const AlertIcon> icon(const std::string &path) const override {
        return readableIcons.contains(path) ? std::make_shared<const AlertIcon>() : nullptr;
    }
    void present(Alert alert, Completion completion) override {
        alerts.push_back(std::move(alert));
        waiting_.push_back(std::move(completion));
    }
    std::size_t runModal(const Alert &alert) override {
        alerts.push_back(alert);
        return modalAnswer;
    }

private:
    std::deque<Completion> waiting_;
};

} // namespace velmar
