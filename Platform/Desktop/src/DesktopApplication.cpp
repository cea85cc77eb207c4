#include <Desktop/DesktopApplication.h>

#include <Desktop/ApplicationDelegate.h>
#include <Desktop/DesktopAppearance.h>
#include <Desktop/QtMainQueue.h>
#include <Desktop/QtTimerScheduler.h>

#include <Dispatch/UncaughtHandler.h>

#include "AccessibleScrollArea.h"
#include "TerminationSignals.h"

#include <QApplication>

#include <fontconfig/fontconfig.h>

#include <utility>

namespace velmar {

class DesktopApplication::Loop final : public QApplication {
public:
    Loop(int &argumentCount, char **arguments)
        : QApplication(argumentCount, arguments), signals_([this] { signalCame(); }) {
        setQuitOnLastWindowClosed(false);
        installAccessibleScrollAreas();
        connect(this, &QGuiApplication::lastWindowClosed, this, [this] { lastWindowWasClosed(); });
        connect(this, &QGuiApplication::applicationStateChanged, this,
                [this](Qt::ApplicationState state) { stateChanged(state); });
    }

    bool notify(QObject *receiver, QEvent *event) override {
        bool wasHandled = true;
        runReportingUncaught("Event", [&] { wasHandled = QApplication::notify(receiver, event); });
        return wasHandled;
    }

    int run(ApplicationDelegate &delegate) {
        delegate_ = &delegate;
        hasBegun_ = false;
        isLaunched_ = false;
        isTerminating_ = false;
        isTerminationDemanded_ = false;
        QMetaObject::invokeMethod(
            this, [this] { launch(); }, Qt::QueuedConnection);
        const int status = exec();
        delegate_ = nullptr;
        if (launchError_) {
            std::rethrow_exception(std::exchange(launchError_, nullptr));
        }
        return status;
    }

    void terminate() {
        // A nested loop of the delegate may deliver a second request.
        if (delegate_ == nullptr || std::exchange(isTerminating_, true)) {
            return;
        }
        // The delegate has no state to save before the end of the first event.
        if (hasBegun_) {
            bool isRefused = false;
            runReportingUncaught("applicationShouldTerminate",
                                 [&] { isRefused = !delegate_->applicationShouldTerminate(); });
            if (isRefused) {
                isTerminating_ = false;
                isTerminationDemanded_ = false;
                return;
            }
            runReportingUncaught("applicationWillTerminate", [&] { delegate_->applicationWillTerminate(); });
        }
        exit(0);
    }

    [[nodiscard]] bool isTerminationDemanded() const {
        return isTerminationDemanded_ || signals_.isOnePending();
    }

protected:
    bool event(QEvent *event) override {
        // The toolkit's default handler asks each window to close, which it may refuse.
        if (event->type() == QEvent::Quit) {
            terminate();
            return true;
        }
        return QApplication::event(event);
    }

private:
    void signalCame() {
        // The signal may arrive in a nested loop during the termination.
        if (isTerminating_) {
            isTerminationDemanded_ = true;
        } else {
            terminate();
        }
    }

    void launch() {
        if (isTerminating_) {
            return;
        }
        try {
            delegate_->applicationWillFinishLaunching();
            hasBegun_ = true;
            if (!isTerminating_) {
                delegate_->applicationDidFinishLaunching();
                isLaunched_ = true;
            }
        } catch (...) {
            launchError_ = std::current_exception();
            exit(EXIT_FAILURE);
        }
    }

    void lastWindowWasClosed() {
        // An alert may be the last window before the end of the launch.
        if (!isLaunched_ || isTerminating_) {
            return;
        }
        bool isLast = false;
        runReportingUncaught("applicationShouldTerminateAfterLastWindowClosed",
                             [&] { isLast = delegate_->applicationShouldTerminateAfterLastWindowClosed(); });
        if (isLast) {
            terminate();
        }
    }

    void stateChanged(Qt::ApplicationState state) {
        if (delegate_ == nullptr || isTerminating_) {
            return;
        }
        const bool isActive = state == Qt::ApplicationActive;
        if (isActive == std::exchange(isActive_, isActive)) {
            return;
        }
        // The desktop reports the change once, after the fact.
        runReportingUncaught("applicationStateChanged", [&] {
            if (isActive) {
                delegate_->applicationWillBecomeActive();
                delegate_->applicationDidBecomeActive();
            } else {
                delegate_->applicationWillResignActive();
                delegate_->applicationDidResignActive();
            }
        });
    }

    TerminationSignals signals_;
    ApplicationDelegate *delegate_ = nullptr;
    std::exception_ptr launchError_;
    bool hasBegun_ = false; // set after the first event
    bool isLaunched_ = false;
    bool isActive_ = false;
    bool isTerminating_ = false;
    bool isTerminationDemanded_ = false; // by a signal during the termination
};

DesktopApplication::DesktopApplication(int &argumentCount, char **arguments)
    : fontLoader_([] { FcInit(); }),
      appearance_(std::make_unique<DesktopAppearance>()),
      loop_(std::make_unique<Loop>(argumentCount, arguments)),
      mainQueue_(std::make_unique<QtMainQueue>()),
      timers_(std::make_unique<QtTimerScheduler>()) {}

DesktopApplication::~DesktopApplication() {
    fontLoader_.join();
}

int DesktopApplication::run(ApplicationDelegate &delegate) {
    return loop_->run(delegate);
}

void DesktopApplication::terminate() {
    loop_->terminate();
}

bool DesktopApplication::isTerminationDemanded() const {
    return loop_->isTerminationDemanded();
}

} // namespace velmar
