#pragma once

#include <System/RunningApplications.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace velmar {

/// A fake; the test starts the applications.
class TestRunningApplications final : public RunningApplications {
public:
    /// Reports a start to every observer, in the order of registration.
    void start(const std::string &identifier) {
        const RunningApplication application{identifier, ++lastProcess_};
        const auto observers = observers_;
        for (const auto &each : observers) {
            if (const auto observer = each.lock()) {
                (*observer)(application);
            }
        }
    }

    /// Returns the number of active observations.
    [[nodiscard]] std::size_t observations() const {
        std::size_t count = 0;
        for (const auto &each : observers_) {
            count += each.expired() ? 0 : 1;
        }
        return count;
    }

    [[nodiscard]] std::unique_ptr<Observation> observe(Observer observer) override {
        auto owned = std::make_unique<TestObservation>();
        owned->observer = std::make_shared<const Observer>(std::move(observer));
        observers_.push_back(owned->observer);
        return owned;
    }

private:
    struct TestObservation final : Observation {
        std::shared_ptr<const Observer> observer;
    };

    std::vector<std::weak_ptr<const Observer>> observers_;
    std::int32_t lastProcess_ = 0;
};

} // namespace velmar
