#include <Desktop/DesktopAlertPresenter.h>

#include "AlertDialog.h"
#include "AlertImage.h"

#include <Dispatch/UncaughtHandler.h>

#include <QApplication>
#include <QPointer>

#include <deque>
#include <utility>

namespace velmar {

/// The open alert and the waiting ones.
class DesktopAlertPresenter::Queue final : public QObject {
public:
    ~Queue() override {
        if (dialog_ != nullptr) {
            dialog_->disconnect(this);
            delete dialog_;
        }
    }

    void add(Alert alert, Completion completion) {
        waiting_.emplace_back(std::move(alert), std::move(completion));
        showNext();
    }

    std::size_t runModal(const Alert &alert) {
        ++modalAlerts_;
        AlertDialog dialog(alert, QApplication::activeWindow());
        dialog.place();
        dialog.exec();
        --modalAlerts_;
        showNext();
        return dialog.answer();
    }

private:
    void showNext() {
        if (isBusy_ || modalAlerts_ > 0 || waiting_.empty()) {
            return;
        }
        isBusy_ = true;
        auto [alert, completion] = std::move(waiting_.front());
        waiting_.pop_front();
        completion_ = std::move(completion);
        dialog_ = new AlertDialog(alert, QApplication::activeWindow());
        connect(dialog_, &QDialog::finished, this, [this] {
            dialog_->disconnect(this);
            dialog_->deleteLater();
            answered(dialog_->answer());
        });
        // A destroyed parent window destroys its alerts.
        connect(dialog_, &QObject::destroyed, this,
                [this, dismissal = dialog_->answer()] { answered(dismissal); });
        dialog_->setModal(true);
        dialog_->place();
        dialog_->show();
        dialog_->activateWindow();
    }

    void answered(std::size_t button) {
        if (!completion_) {
            return;
        }
        // Posted, not called: the completion may destroy the parent window during the click.
        QMetaObject::invokeMethod(
            this,
            [this, button, completion = std::exchange(completion_, {})] {
                isBusy_ = false;
                runReportingUncaught("AlertPresenter", [&] { completion(button); });
                showNext();
            },
            Qt::QueuedConnection);
    }

    std::deque<std::pair<Alert, Completion>> waiting_;
    QPointer<AlertDialog> dialog_;
    Completion completion_; // completion of the open alert; empty once it is answered
    bool isBusy_ = false;   // from showing an alert until its completion is called
    int modalAlerts_ = 0;
};

DesktopAlertPresenter::DesktopAlertPresenter() : queue_(std::make_unique<Queue>()) {}
DesktopAlertPresenter::~DesktopAlertPresenter() = default;

std::shared_ptr<const AlertIcon> DesktopAlertPresenter::icon(const std::string &path) const {
    return AlertImage::read(path);
}

void DesktopAlertPresenter::present(Alert alert, Completion completion) {
    queue_->add(std::move(alert), std::move(completion));
}

std::size_t DesktopAlertPresenter::runModal(const Alert &alert) {
    return queue_->runModal(alert);
}

} // namespace velmar
