#pragma once

#include <Interaction/AlertPresenter.h>

#include <memory>

namespace velmar {

/// An AlertPresenter that shows alerts as desktop windows.
class DesktopAlertPresenter final : public AlertPresenter {
public:
    DesktopAlertPresenter();
    ~DesktopAlertPresenter() override;

    [[nodiscard]] std::shared_ptr<const AlertIcon> icon(const std::string &path) const override;
    void present(Alert alert, Completion completion) override;
    std::size_t runModal(const Alert &alert) override;

private:
    class Queue;
    std::unique_ptr<Queue> queue_;
};

} // namespace velmar
