#include <AppDelegate/ServiceableAppDelegate.h>
#include <AppDelegate/Services/LoginRelaunchAppDelegateService.h>
#include <AppDelegate/Services/MenuBarIcon.h>
#include <AppDelegate/Services/WindowPlacement.h>
#include <AppDelegate/Services/WindowPresentation.h>
#include <Base/VelmarError.h>

#include <Support/RecordedLog.h>
#include <Testing/TemporaryDirectory.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace velmar {
namespace {

using namespace WindowPlacement;

class Service final : public AppDelegateService {
public:
    Service(std::string name, std::string &calls) : name_(std::move(name)), calls_(calls) {}
    void applicationWillFinishLaunching() override { calls_ += name_ + "begins "; }
    void applicationWillTerminate() override { calls_ += name_ + "ends "; }

private:
    std::string name_;
    std::string &calls_;
};

TEST(ServiceableAppDelegate, PassesAnEventToNewServicesInTheirOrder) {
    struct Delegate final : ServiceableAppDelegate {
        std::vector<std::shared_ptr<AppDelegateService>> services() override {
            return {std::make_shared<Service>("1", calls), std::make_shared<Service>("2", calls)};
        }
        std::string calls;
    } delegate;
    delegate.applicationWillFinishLaunching();
    delegate.applicationDidBecomeActive();
    delegate.applicationWillTerminate();
    EXPECT_EQ(delegate.calls, "1begins 2begins 1ends 2ends ");
}

TEST(LoginRelaunch, WritesOrRemovesTheEntryAndLogsWhatFails) {
    const TemporaryDirectory directory;
    const LoginItem item(directory.path());
    const RecordedLog log;
    LoginRelaunchAppDelegateService(item, {"/usr/bin/velmar", "-c", "first"}, true)
        .applicationDidFinishLaunching();
    EXPECT_TRUE(
        FileManager().contents(item.path(), 4096).find("Exec=\"/usr/bin/velmar\" \"-c\" \"first\"\n") !=
        std::string::npos);
    LoginRelaunchAppDelegateService(item, {}, false).applicationDidFinishLaunching();
    EXPECT_FALSE(FileManager().fileExists(item.path()));
    EXPECT_TRUE(log.lines().empty());
    LoginRelaunchAppDelegateService(LoginItem("/dev/null"), {"/usr/bin/velmar"}, true)
        .applicationDidFinishLaunching();
    ASSERT_EQ(log.lines().size(), 1U);
    EXPECT_TRUE(log.lines().front().starts_with("error: Unable to set the relaunch at login. "));
}

TEST(WindowPlacement, TakesTheMainScreenForAnIndexWithoutAScreen) {
    const ScreenFrame left{0, 0, 1280, 800};
    const ScreenFrame right{1280, 0, 1920, 1080};
    const Screens two{.frames = {left, right}, .main = left};
    using Index = std::optional<std::int64_t>;
    const std::pair<Index, ScreenFrame> cases[] = {
        {{}, left}, {0, left},  {1, right},
        {2, left},  {-1, left}, {std::numeric_limits<std::int64_t>::max(), left}};
    for (const auto &[index, screen] : cases) {
        EXPECT_EQ(chooseScreen(two, index), screen);
    }
    EXPECT_EQ(chooseScreen({.frames = {right}, .main = {}}, 0), right);
    const RecordedLog log;
    EXPECT_THROW(static_cast<void>(chooseScreen({}, 0)), VelmarError);
}

TEST(WindowPlacement, PutsAWindowWhereTheTableSays) {
    using Horizontal = WindowPositionItem::Horizontal;
    using Vertical = WindowPositionItem::Vertical;
    const ScreenFrame screen{100, 50, 1000, 800};
    struct Case {
        Horizontal horizontal;
        Vertical vertical;
        double padding;
        Origin origin;
    };
    for (const Case &row : {Case{Horizontal::left, Vertical::top, 20, {120, 92}},
                            Case{Horizontal::left, Vertical::top, 0, {100, 72}},
                            Case{Horizontal::center, Vertical::center, 20, {400, 300}},
                            Case{Horizontal::center, Vertical::center, 500, {400, 300}},
                            Case{Horizontal::right, Vertical::bottom, 20, {680, 530}},
                            Case{Horizontal::right, Vertical::center, 0, {700, 300}},
                            Case{Horizontal::left, Vertical::bottom, -10, {90, 560}},
                            Case{Horizontal::left, Vertical::top, 1e12, {32767, 32767}}}) {
        WindowPositionItem position;
        position._horizontal.set(row.horizontal);
        position._vertical.set(row.vertical);
        position._padding.set(row.padding);
        EXPECT_EQ(originOf(position, 400, 300, screen), row.origin) << row.padding;
    }
}

TEST(WindowPresentation, IsWhatTheTableOfTheModesSays) {
    using enum WindowSection::OnScreen;
    using Backing = ScreenCover::Backing;
    const ScreenFrame main{0, 0, 1000, 800};
    const Screens two{.frames = {main, {1000, 0, 400, 500}}, .main = main};
    const Screens noMain{.frames = {{1000, 0, 400, 500}}, .main = {}};
    struct Case {
        WindowSection::OnScreen mode;
        const Screens &screens;
        std::int64_t screenIndex;
        QSize content;
        std::optional<QPoint> origin;
        bool isRound;
        std::optional<Backing> cover;
    };
    for (const Case &row :
         {Case{simple, two, 0, {300, 200}, {}, true, {}}, Case{menuBar, two, 1, {300, 200}, {}, true, {}},
          Case{blurredBackground, two, 1, {600, 450}, QPoint(200, 175), true, Backing::blurred},
          Case{fullScreen, two, 1, {1000, 800}, QPoint(0, 0), false, Backing::plain},
          Case{fullScreen, noMain, 7, {}, {}, false, {}},
          Case{blurredBackground, noMain, 0, {400, 500}, QPoint(1000, 0), false, {}}}) {
        WindowSection section;
        section._onScreen.set(row.mode);
        section._screenIndex.set(row.screenIndex);
        section._minimumSize.set(SizeItem::of(200, 300));
        section._maximumSize.set(SizeItem::of(450, 600));
        if (row.content.isEmpty()) {
            EXPECT_THROW(static_cast<void>(WindowPresentation::of(section, row.screens)), VelmarError);
            continue;
        }
        const auto presentation = WindowPresentation::of(section, row.screens);
        const bool isOrdinary = row.mode == simple || row.mode == menuBar;
        EXPECT_EQ(presentation.content, row.content);
        EXPECT_EQ(presentation.origin, row.origin);
        EXPECT_EQ(presentation.cover, row.cover);
        EXPECT_EQ(presentation.style.isRound, row.isRound);
        EXPECT_EQ(presentation.style.hasTitleBar, isOrdinary);
        EXPECT_EQ(presentation.style.isClosable, isOrdinary);
        EXPECT_EQ(presentation.style.rank == Window::Style::Rank::ordinary, isOrdinary);
        section._minimumSize.set(SizeItem::of(1e9, -1e9));
        section._maximumSize.set(SizeItem::of(1e9, 1e9));
        EXPECT_LE(WindowPresentation::of(section, row.screens).content.height(), 800) << "all can be reached";
    }
}

TEST(MenuBarIcon, IsTestedAgainstOneWidthAndWarnsOfAnother) {
    const auto warning = [](const std::string &side, int pixels) {
        return "Custom menu bar icon has a " + side + " of " + std::to_string(pixels) +
               " pixels which is not valid and can lead to unexpected graphics behaviours.\nValid " + side +
               ": 15...30 pixels and a relevant width for this height.";
    };
    struct Case {
        int width;
        int height;
        std::vector<std::string> warnings;
    };
    for (const Case &row : {Case{15, 15, {}}, Case{25, 30, {}}, Case{28, 20, {warning("width", 28)}},
                            Case{14, 31, {warning("height", 31), warning("width", 14)}}}) {
        EXPECT_EQ(MenuBarIcon::warningsFor(row.width, row.height), row.warnings);
    }
}

} // namespace
} // namespace velmar
