#include <Actions/ActionSurroundings.h>
#include <Actions/Dispatchable.h>
#include <Actions/DispatchableItem.h>
#include <Actions/SlideWindowPresenter.h>
#include <Configuration/Configuration.h>
#include <Variables/ConditionEvaluator.h>

#include <Support/RecordedLog.h>
#include <Testing/TestAlertPresenter.h>
#include <Testing/TestMainQueue.h>
#include <Testing/TestPasteboard.h>
#include <Testing/TestSoundPlayer.h>
#include <Testing/TestUserNotifications.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>

#include <string>
#include <string_view>
#include <vector>

namespace velmar {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::string_view slide =
    "<dict><key>Containers</key><array><dict><key>Components</key><array><dict><key>Type</key><string>Spacer"
    "</string></dict></array></dict></array></dict>";

/// The one action of a configuration, given as the keys of its dictionary.
std::shared_ptr<const ActionItem> action(std::string_view keys) {
    const auto file = PropertyList::read(fmt::format(
        R"(<plist version="1.0"><dict>
           <key>General</key><dict><key>Variables</key><dict>
             <key>A</key><string>a</string><key>NAME</key><string>Ann</string></dict></dict>
           <key>Slides</key><array>{1}{1}</array>
           <key>ActionSets</key><array><dict>
             <key>Type</key><string>Chained</string>
             <key>Triggers</key><array><string>Launch</string></array>
             <key>Actions</key><array><dict>{0}</dict></array></dict></array></dict></plist>)",
        keys, slide));
    const auto configuration = Configuration::decode(file);
    return {configuration, &configuration->_actionSets().front().set._actions().front()};
}

class Navigator final : public SlideNavigationObserver {
public:
    void navigateToIndex(std::int64_t index) override { requests += fmt::format("index {} ", index); }
    void navigateByOffset(std::int64_t offset) override { requests += fmt::format("offset {} ", offset); }
    std::string requests;
};

struct NoWindows final : SlideWindowPresenter {
    void open(std::shared_ptr<const ActionItems::OpenWindow> /*item*/) override {}
    void close() override {}
};

class ActionsTest : public testing::Test {
protected:
    /// Starts an action and does what waits on the main thread.
    void run(const std::shared_ptr<const ActionItem> &item) {
        outcomes_.clear();
        const auto started = dispatchable(item, surroundings_);
        started->setSuccessCompletionBlock(
            [this](bool success) { outcomes_ += success ? "true " : "false "; });
        started->dispatch();
        mainQueue_.runUntilEmpty();
    }
    void run(std::string_view keys) { run(action(keys)); }

    RecordedLog log_;
    TestMainQueue mainQueue_;
    TestAlertPresenter alerts_;
    TestPasteboard pasteboard_;
    TestSoundPlayer sounds_;
    NoWindows windows_;
    TestUserNotifications notifications_;
    std::string outcomes_;
    int terminations_ = 0;
    std::shared_ptr<ContentManager> store_ = std::make_shared<ContentManager>();
    std::shared_ptr<SlidesActionManager> slides_ = std::make_shared<SlidesActionManager>();
    std::shared_ptr<ActionSurroundings> surroundings_ =
        std::make_shared<ActionSurroundings>(ActionSurroundings{.mainQueue = mainQueue_,
                                                                .alerts = alerts_,
                                                                .pasteboard = pasteboard_,
                                                                .sounds = sounds_,
                                                                .windows = windows_,
                                                                .notifications = notifications_,
                                                                .terminateApp = [this] { ++terminations_; },
                                                                .contentManager = store_,
                                                                .slides = slides_});
    Shared<ConditionEvaluator>::Scope evaluator_{
        std::make_shared<ConditionEvaluator>(ConditionEvaluator::NamedConditions(), store_)};
};

TEST_F(ActionsTest, AreNotRunForAConditionThatFails) {
    ActionItem::Log log;
    log._message.set("done");
    log.common._condition.set(Expression("MISSING == \"b\""));
    run(std::make_shared<const ActionItem>(ActionItem{log}));
    EXPECT_EQ(outcomes_, "");
    EXPECT_THAT(log_.takeLines(), ElementsAre(testing::StartsWith("error: ")));
}

TEST_F(ActionsTest, AnswerAnAlertWithTheTextOfItsButton) {
    alerts_.readableIcons = {"/icon.png"};
    run("<key>Type</key><string>DisplayAlert</string><key>Title</key><string>T</string>"
        "<key>Message</key><string>M</string><key>Style</key><string>Critical</string>"
        "<key>Variable</key><string>ANSWER</string><key>IconPath</key><string>/icon.png</string>"
        "<key>ButtonsText</key><array><string>Now</string><string>Later</string></array>");
    EXPECT_EQ(alerts_.alerts.back().style, Alert::Style::critical);
    EXPECT_THAT(alerts_.alerts.back().buttons, ElementsAre("Now", "Later"));
    EXPECT_NE(alerts_.alerts.back().icon, nullptr);
    EXPECT_EQ(outcomes_, "");
    alerts_.answer(1);
    EXPECT_EQ(outcomes_, "true ");
    EXPECT_EQ(store_->variables()->at("ANSWER"), "Later");
}

TEST_F(ActionsTest, ShowANotification) {
    for (const bool isShown : {true, false}) {
        notifications_.outcome = {.isShown = isShown, .problem = isShown ? "" : "No."};
        run("<key>Type</key><string>DisplayNotification</string><key>Title</key><string>T</string>"
            "<key>SoundName</key><string>bell</string><key>Actions</key><array><dict><key>Title</key>"
            "<string>Go</string><key>Trigger</key><string>go</string></dict></array>");
        EXPECT_EQ(outcomes_, isShown ? "true " : "false ");
    }
    EXPECT_THAT(log_.takeLines(), ElementsAre(HasSubstr("No.")));
    EXPECT_EQ(notifications_.notifications.back().soundName, "bell");
    EXPECT_THAT(notifications_.notifications.back().actions,
                ElementsAre(UserNotification::Action{"go", "Go"}));
}

TEST_F(ActionsTest, PlayTheSoundOrElseTheOneOfTheProgram) {
    sounds_.named.insert({"Bell", {"/theme/bell"}});
    sounds_.files = {"file:///a.wav"};
    const struct {
        const char *name;
        const char *played;
        bool warns;
    } cases[] = {{"Bell", "/theme/bell", false},
                 {"file:///a.wav", "file:///a.wav", false},
                 {"/b.wav", "/sounds/Hero", true}};
    for (const auto &[name, played, warns] : cases) {
        run(fmt::format(
            "<key>Type</key><string>PlaySound</string><key>SoundNameOrFilePath</key><string>{}</string>",
            name));
        EXPECT_EQ(sounds_.played().back(), played);
        EXPECT_THAT(log_.takeLines(), testing::SizeIs(warns ? 1 : 0));
        EXPECT_EQ(outcomes_, "");
        sounds_.end({.hasFinished = !warns, .problem = "Broken."});
        EXPECT_EQ(outcomes_, warns ? "false " : "true ");
    }
    EXPECT_THAT(log_.takeLines(), ElementsAre(HasSubstr("Broken.")));
}

TEST_F(ActionsTest, CopyNavigateUpdateAndTerminate) {
    const auto navigator = std::make_shared<Navigator>();
    slides_->addObserver(navigator);
    const auto runs = [this](std::string_view type, std::string_view keys) {
        run(fmt::format("<key>Type</key><string>{}</string>{}", type, keys));
        return outcomes_;
    };
    EXPECT_EQ(runs("CopyToClipboard", "<key>Text</key><string>first</string>"), "true ");
    EXPECT_THAT(log_.takeLines(), ElementsAre(HasSubstr("first")));
    pasteboard_.accepts = false;
    EXPECT_EQ(runs("CopyToClipboard", "<key>Text</key><string>x</string><key>Log</key><false/>"), "false ");
    EXPECT_EQ(pasteboard_.content, "first");
    EXPECT_THAT(log_.takeLines(), ElementsAre(HasSubstr("error: ")));

    EXPECT_EQ(runs("NavigateToSlide", "<key>Index</key><integer>1</integer>"), "true ");
    EXPECT_EQ(runs("NavigateToSlide", "<key>Offset</key><integer>-3</integer>"), "true ");
    EXPECT_EQ(navigator->requests, "index 1 offset -3 ");

    EXPECT_EQ(runs("UpdateVariable",
                   "<key>Variable</key><string>${V}</string><key>NewValue</key><string>1</string>"),
              "true ");
    EXPECT_EQ(store_->variables()->at("V"), "1");
    ActionItem::UpdateVariable update;
    update._variable.set("${USER_NAME}");
    run(std::make_shared<const ActionItem>(ActionItem{update}));
    EXPECT_EQ(outcomes_, "false ");
    EXPECT_THAT(log_.takeLines(),
                Contains(HasSubstr("Updating placeholders with the 'UpdateVariable' action is not allowed")));

    EXPECT_EQ(runs("TerminateApp", ""), "true ");
    EXPECT_EQ(terminations_, 1);
}

} // namespace
} // namespace velmar
