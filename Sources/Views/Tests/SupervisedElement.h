#pragma once

#include <Views/Content/MandatorySupervision.h>

#include <functional>
#include <memory>
#include <utility>

namespace velmar {

/// A mandatory element whose validity is set by the test.
class SupervisedElement final : public MandatorySupervised,
                                public std::enable_shared_from_this<SupervisedElement> {
public:
    [[nodiscard]] const UUID &mandatoryIdentifier() const override { return identifier_; }
    [[nodiscard]] bool isValid() const override { return isValid_; }
    void setMandatorySupervisor(std::weak_ptr<MandatorySupervisor> supervisor) override {
        supervisor_ = std::move(supervisor);
        set(isValid_);
    }
    void showWarnings() override {
        ++warnings;
        warned();
    }
    void set(bool isValid) {
        isValid_ = isValid;
        if (const auto supervisor = supervisor_.lock()) {
            supervisor->elementDidChange(shared_from_this());
        }
    }
    int warnings = 0;
    std::function<void()> warned = [] {};

private:
    UUID identifier_;
    std::weak_ptr<MandatorySupervisor> supervisor_;
    bool isValid_ = true;
};

} // namespace velmar
