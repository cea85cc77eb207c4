// Benchmarks of the frames of a slide transition, with a bare window that is repainted completely as the
// reference, and of the main thread's load while conditions change a thousand times per second.

#include "Median.h"

#include <Configuration/Configuration.h>
#include <Desktop/DesktopAppearance.h>
#include <Desktop/QtMainQueue.h>
#include <Support/TestServices.h>
#include <Termination/AppTerminationManager.h>
#include <Variables/ConditionEvaluator.h>
#include <Variables/ContentManager.h>
#include <Views/Content/ContentView/ContentViewController.h>
#include <Views/Content/ContentView/ContentViewModel.h>
#include <Views/CustomViews/Theme.h>

#include <fmt/format.h>

#include <QApplication>
#include <QEventLoop>
#include <QPainter>
#include <QTimer>

#include <chrono>
#include <ctime>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace velmar;
using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr QSize windowSize(1280, 768);

/// Application that measures the repaints of one window.
class MeasuringApplication final : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override {
        if (receiver != window || event->type() != QEvent::UpdateRequest) {
            return QApplication::notify(receiver, event);
        }
        const auto start = Clock::now();
        const bool isHandled = QApplication::notify(receiver, event);
        frames.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
        return isHandled;
    }

    std::vector<double> takeFrames() { return std::exchange(frames, {}); }

    QWidget *window = nullptr;
    std::vector<double> frames;
};

void runFor(std::chrono::milliseconds time) {
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

ComponentItem text(std::string content, const std::string &condition = {}) {
    ComponentItem::Text item;
    item._text.set(std::move(content));
    if (!condition.empty()) {
        item.common._condition.set(Expression(condition));
    }
    return {item};
}

SlideItem slide(std::vector<ComponentItem> components) {
    ContainerItem container;
    container._components.set(std::move(components));
    SlideItem item;
    item._containers.set({container});
    return item;
}

class NoQuitting final : public AppTerminationManagerProtocol {
public:
    void tryToQuitApplication() override {}
};

/// Slides in a visible window.
class Content {
public:
    Content(const std::vector<SlideItem> &slides, const DesktopAppearance &appearance) {
        ContentViewModel::Settings settings;
        settings._onScreen.setOverrideValue(WindowSection::OnScreen::simple);
        settings._onboardSlides.setOverrideValue(slides);
        model = std::make_shared<ContentViewModel>(queue, quitting, center, settings);
        model->setupNotifications();
        view = std::make_unique<ContentViewController>(model, services.bundle, appearance, nullptr);
        view->resize(windowSize);
        view->show();
        runFor(300ms);
    }

    QtMainQueue queue;
    TestServices services{queue};
    NoQuitting quitting;
    NotificationCenter center;
    std::shared_ptr<ContentViewModel> model;
    std::unique_ptr<ContentViewController> view;
};

/// Window that fills itself with alternating colours.
class BareWindow final : public QWidget {
protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPainter(this).fillRect(rect(), ++paints_ % 2 == 0 ? Qt::white : Qt::lightGray);
    }

private:
    int paints_ = 0;
};

std::vector<double> bareFrames(MeasuringApplication &application) {
    BareWindow bare;
    bare.setAttribute(Qt::WA_OpaquePaintEvent);
    bare.resize(windowSize);
    bare.show();
    runFor(300ms);
    application.window = &bare;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &bare, qOverload<>(&QWidget::update));
    timer.start(16);
    application.takeFrames();
    runFor(1500ms);
    return application.takeFrames();
}

std::vector<double> transitionFrames(MeasuringApplication &application, const DesktopAppearance &appearance) {
    std::vector<ComponentItem> components;
    for (int i = 0; i < 10; ++i) {
        components.push_back(text(fmt::format("Line {} of what a slide has to say to whoever sees it.", i)));
    }
    const Content content({slide(components), slide(components)}, appearance);
    application.window = content.view.get();
    // Each slide is made and painted once before the measurement.
    for (const int index : {1, 0}) {
        content.model->setSelectedIndex(index, true);
        runFor(500ms);
    }
    application.takeFrames();
    for (const int index : {1, 0, 1}) {
        content.model->setSelectedIndex(index, true);
        runFor(500ms);
    }
    return application.takeFrames();
}

double processorSeconds() {
    std::timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

/// Returns the processor seconds of the main thread in one second with a thousand changes.
double busySeconds(const DesktopAppearance &appearance) {
    const auto store = ContentManager::shared();
    store->updateVariable("TICK", "0", false);
    std::vector<ComponentItem> components;
    for (int i = 0; i < 50; ++i) {
        components.push_back(text(fmt::format("Line {}", i), fmt::format("TICK >= {}", i * 20)));
    }
    const Content content({slide(components)}, appearance);
    QEventLoop loop;
    std::thread writer([&] {
        const auto start = Clock::now();
        for (int tick = 0; tick < 1000; ++tick) {
            store->updateVariable("TICK", std::to_string(tick), false);
            std::this_thread::sleep_until(start + (tick + 1) * 1ms);
        }
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    const double before = processorSeconds();
    loop.exec();
    const double busy = processorSeconds() - before;
    writer.join();
    return busy;
}

} // namespace

int main(int argumentCount, char **arguments) {
    MeasuringApplication application(argumentCount, arguments);
    DesktopAppearance appearance;
    Theme::install(appearance);
    const Shared<ConditionEvaluator>::Scope evaluator(std::make_shared<ConditionEvaluator>(
        ConditionEvaluator::NamedConditions(), ContentManager::shared()));

    const double reference = median(bareFrames(application));
    const std::vector<double> frames = transitionFrames(application, appearance);
    fmt::print("slide-frame ours={:.2f}ms reference={:.2f}ms ratio={:.3f} goal=<=1.5 frames={}\n",
               median(frames), reference, median(frames) / reference, frames.size());
    const double busy = busySeconds(appearance);
    fmt::print("condition-changes ours={:.3f}s reference=1s ratio={:.3f} goal=<=0.5\n", busy, busy);
}
