#include <Desktop/ApplicationDelegate.h>
#include <Desktop/DesktopApplication.h>
#include <Desktop/Display.h>
#include <Dispatch/UncaughtHandler.h>
#include <Support/QtTest.h>

#include <QDialog>
#include <QWidget>

#include <fmt/format.h>

#include <csignal>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace velmar {
namespace {

/// Records events and runs the test's function at the end of the launch.
class Recorder final : public ApplicationDelegate {
public:
    void applicationWillFinishLaunching() override {
        events.emplace_back("will launch");
        if (whileLaunching) {
            whileLaunching();
        }
    }
    void applicationDidFinishLaunching() override {
        events.emplace_back("did launch");
        afterLaunch();
    }
    void applicationWillBecomeActive() override {}
    void applicationDidBecomeActive() override {}
    void applicationWillResignActive() override {}
    void applicationDidResignActive() override {}
    void applicationWillTerminate() override {
        events.emplace_back("will terminate");
        fail();
    }
    bool applicationShouldTerminate() override {
        events.emplace_back("should terminate");
        fail();
        return refusals-- <= 0;
    }
    bool applicationShouldTerminateAfterLastWindowClosed() override { return endsWithItsWindow; }

    std::function<void()> whileLaunching;
    std::function<void()> afterLaunch;
    int refusals = 0;
    bool fails = false;
    bool endsWithItsWindow = true;
    std::vector<std::string> events;

private:
    void fail() const {
        if (fails) {
            throw std::runtime_error("termination");
        }
    }
};

class Application : public QtTest<testing::Test, DesktopApplication> {
protected:
    Recorder recorder;
};

TEST_F(Application, EndsInOrderUnlessTheDelegateRefuses) {
    using Function = std::function<void()>;
    const Function nothing = [] {};
    const Function terminate = [] { application().terminate(); };
    const Function twice = [] {
        application().terminate();
        application().mainQueue().async([] { application().terminate(); });
    };
    const Function signalBesideAlert = [] {
        QDialog alert;
        application().mainQueue().async([] { std::raise(SIGTERM); });
        alert.exec();
    };
    // An alert that closes before the end of the launch doesn't count as the last window.
    const Function closedAlert = [] {
        QDialog alert;
        application().mainQueue().async([&alert] { alert.accept(); });
        alert.exec();
    };
    const struct {
        Function whileLaunching, afterLaunch;
        int refusals;
        bool fails;
        std::string events; // events after the first
    } rows[] = {
        {nothing, terminate, 0, false, "did launch, should terminate, will terminate"},
        {nothing, [] { std::raise(SIGINT); }, 0, false, "did launch, should terminate, will terminate"},
        {nothing, [] { QCoreApplication::quit(); }, 0, false, "did launch, should terminate, will terminate"},
        {nothing, signalBesideAlert, 0, false, "did launch, should terminate, will terminate"},
        {nothing, terminate, 0, true, "did launch, should terminate, will terminate"},
        {signalBesideAlert, nothing, 0, false, ""},
        {closedAlert, twice, 1, false, "did launch, should terminate, should terminate, will terminate"}};
    std::vector<std::string> uncaught;
    setUncaughtHandler([&](auto label, std::exception_ptr) { uncaught.emplace_back(label); });
    for (const auto &row : rows) {
        recorder.events.clear();
        recorder.whileLaunching = row.whileLaunching;
        recorder.afterLaunch = row.afterLaunch;
        recorder.refusals = row.refusals;
        recorder.fails = row.fails;
        EXPECT_EQ(application().run(recorder), 0);
        EXPECT_EQ(fmt::format("{}", fmt::join(recorder.events, ", ")),
                  row.events.empty() ? "will launch" : "will launch, " + row.events);
    }
    setUncaughtHandler({});
    EXPECT_EQ(uncaught, (std::vector<std::string>{"applicationShouldTerminate", "applicationWillTerminate"}));
}

TEST_F(Application, TerminatesWithItsLastWindowOnlyIfTheDelegateSaysSo) {
    QWidget window;
    recorder.endsWithItsWindow = false;
    recorder.afterLaunch = [&] {
        window.show();
        window.close();
        application().mainQueue().async([&] {
            recorder.endsWithItsWindow = true;
            window.show();
            window.close();
        });
    };
    application().run(recorder);
    EXPECT_EQ(recorder.events.back(), "will terminate");
    EXPECT_TRUE(recorder.endsWithItsWindow);
}

TEST_F(Application, GivesWhatTheLaunchThrewToItsCaller) {
    recorder.afterLaunch = [] { throw std::runtime_error("no screen"); };
    EXPECT_THROW(application().run(recorder), std::runtime_error);
    EXPECT_EQ(recorder.events.back(), "did launch");
}

TEST_F(Application, ReportsWhatAHandlerThrowsAndGoesOn) {
    struct Thrower : QObject {
        bool event(QEvent * /*event*/) override { throw std::runtime_error("handler"); }
    } thrower;
    std::vector<std::string> uncaught;
    setUncaughtHandler([&](auto, std::exception_ptr exception) { uncaught.emplace_back(textOf(exception)); });
    recorder.afterLaunch = [&] {
        QCoreApplication::postEvent(&thrower, new QEvent(QEvent::User));
        application().mainQueue().async([] { application().terminate(); });
    };
    EXPECT_EQ(application().run(recorder), 0);
    setUncaughtHandler({});
    EXPECT_EQ(uncaught, std::vector<std::string>{"handler"});
}

TEST(Display, IsMissedOnlyWhereThePlatformNeedsOne) {
    ::unsetenv("DISPLAY");
    ::unsetenv("WAYLAND_DISPLAY");
    EXPECT_FALSE(displayProblem({})) << "offscreen by the environment";
    const std::vector<std::string> xcb{"-platform", "xcb"};
    EXPECT_EQ(displayProblem(xcb), "There is no display to show a window on: DISPLAY is not set.");
    ::setenv("DISPLAY", ":4711", 1);
    EXPECT_EQ(displayProblem(xcb), "There is no display to show a window on: ':4711' does not answer.");
    ::unsetenv("DISPLAY");
}

} // namespace
} // namespace velmar
