#include <Actions/Action.h>
#include <Actions/ActionContext.h>
#include <Actions/Dispatchable.h>
#include <Actions/DispatchableItem.h>
#include <Actions/SlideWindowPresenter.h>
#include <Configuration/Configuration.h>
#include <Variables/ConditionEvaluator.h>

#include <Support/FactoryTableTest.h>
#include <Support/RecordedLog.h>
#include <Support/TestServices.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmar {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::string_view slide =
    "<dict><key>Containers</key><array><dict><key>Components</key><array><dict><key>Type</key><string>Spacer"
    "</string></dict></array></dict></array></dict>";

/// Returns the only action of a configuration; `keys` are the contents of its dictionary.
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

struct ScriptedAction final : Action {
    using Action::Action;
    using Action::complete;
    using Action::performOnMainThread;
    void perform() override { work(*this); }
    std::function<void(ScriptedAction &)> work;
};

class ActionsTest : public testing::Test {
protected:
    /// Starts an action and runs the work posted to the main thread.
    void run(const std::shared_ptr<const ActionItem> &item) {
        outcomes_.clear();
        const auto started = dispatchable(context_, item);
        started->setSuccessCompletionBlock(
            [this](bool success) { outcomes_ += success ? "true " : "false "; });
        started->dispatch();
        services_.mainQueue.runUntilEmpty();
    }
    void run(std::string_view keys) { run(action(keys)); }

    RecordedLog log_;
    TestServices services_;
    std::string outcomes_;
    int terminations_ = 0;
    std::shared_ptr<SlidesActionManager> slides_ = std::make_shared<SlidesActionManager>();
    std::shared_ptr<const ActionContext> context_ = std::make_shared<const ActionContext>(ActionContext{
        .services = services_.bundle, .terminateApp = [this] { ++terminations_; }, .slides = slides_});
    Shared<ConditionEvaluator>::Scope evaluator_{
        std::make_shared<ConditionEvaluator>(ConditionEvaluator::NamedConditions(), services_.variables)};
};

TEST_F(ActionsTest, HaveARuntimeFormOrAreNamedAsNotBuilt) {
    expectEachTypeOnce(actionTable());
}

TEST_F(ActionsTest, OfATypeThatIsNotBuiltSaySoAndFail) {
    run("<key>Type</key><string>LogoutUser</string>");
    EXPECT_EQ(outcomes_, "false ");
    EXPECT_THAT(log_.takeLines(),
                ElementsAre(HasSubstr("Actions of the type 'LogoutUser' cannot be run yet")));
}

TEST_F(ActionsTest, AreNotRunForAConditionThatFails) {
    ActionItem::Log log;
    log._message.set("done");
    log.common._condition.set(Expression("MISSING == \"b\""));
    run(std::make_shared<const ActionItem>(ActionItem{log}));
    EXPECT_EQ(outcomes_, "");
    EXPECT_THAT(log_.takeLines(), ElementsAre(testing::StartsWith("error: ")));
}

TEST_F(ActionsTest, TellTheirEndOnceAndLetGoOfTheirBlock) {
    using Work = std::function<void(ScriptedAction &)>;
    const auto fail = [] { throw std::runtime_error("on purpose"); };
    const struct {
        Work work;
        const char *outcomes;
        std::size_t errors;
    } cases[] = {
        {[](ScriptedAction &action) { action.complete(false); }, "false ", 0},
        {[](ScriptedAction &action) {
             action.complete(true);
             action.complete(false);
         },
         "true ", 0},
        {[&](ScriptedAction & /*action*/) { fail(); }, "false ", 1},
        {[&](ScriptedAction &action) {
             action.complete(true);
             fail();
         },
         "true ", 1},
        {[&](ScriptedAction &action) { action.performOnMainThread(fail); }, "false ", 1},
        {[&](ScriptedAction &action) {
             action.performOnMainThread(fail);
             action.complete(true);
         },
         "true ", 1},
    };
    for (const auto &[work, outcomes, errors] : cases) {
        auto started = std::make_shared<ScriptedAction>(
            action("<key>Type</key><string>TerminateApp</string>"), context_);
        started->work = work;
        outcomes_.clear();
        started->setSuccessCompletionBlock(
            [this, started](bool success) { outcomes_ += success ? "true " : "false "; });
        const std::weak_ptr<Action> watched = started;
        std::exchange(started, nullptr)->dispatch();
        services_.mainQueue.runUntilEmpty();
        const auto row = &work - &cases[0].work;
        EXPECT_EQ(outcomes_, outcomes) << row;
        EXPECT_TRUE(watched.expired()) << row;
        EXPECT_THAT(log_.takeLines(), testing::SizeIs(errors)) << row;
    }
}

TEST_F(ActionsTest, AnswerAnAlertWithTheTextOfItsButton) {
    services_.alerts.readableIcons = {"/icon.png"};
    run("<key>Type</key><string>DisplayAlert</string><key>Title</key><string>T</string>"
        "<key>Message</key><string>M</string><key>Style</key><string>Critical</string>"
        "<key>Variable</key><string>ANSWER</string><key>IconPath</key><string>/icon.png</string>"
        "<key>ButtonsText</key><array><string>Now</string><string>Later</string></array>");
    EXPECT_THAT(services_.alerts.alerts.back().buttons, ElementsAre("Now", "Later"));
    EXPECT_NE(services_.alerts.alerts.back().icon, nullptr);
    EXPECT_EQ(outcomes_, "");
    services_.alerts.answer(1);
    EXPECT_EQ(outcomes_, "true ");
    EXPECT_EQ(services_.variables->variables()->at("ANSWER"), "Later");
}

TEST_F(ActionsTest, ShowAnAlertOfEachStyle) {
    const std::pair<const char *, Alert::Style> cases[] = {{"Informational", Alert::Style::informational},
                                                           {"Warning", Alert::Style::warning},
                                                           {"Critical", Alert::Style::critical}};
    for (const auto &[name, style] : cases) {
        run(fmt::format("<key>Type</key><string>DisplayAlert</string><key>Title</key><string>T</string>"
                        "<key>Message</key><string>M</string><key>Style</key><string>{}</string>"
                        "<key>ButtonsText</key><array><string>OK</string></array>",
                        name));
        EXPECT_EQ(services_.alerts.alerts.back().style, style) << name;
    }
}

TEST_F(ActionsTest, ShowANotification) {
    for (const bool isShown : {true, false}) {
        services_.notifications.outcome = {.isShown = isShown, .problem = isShown ? "" : "No."};
        run("<key>Type</key><string>DisplayNotification</string><key>Title</key><string>T</string>"
            "<key>SoundName</key><string>bell</string><key>Actions</key><array><dict><key>Title</key>"
            "<string>Go</string><key>Trigger</key><string>go</string></dict></array>");
        EXPECT_EQ(outcomes_, isShown ? "true " : "false ");
    }
    EXPECT_THAT(log_.takeLines(), ElementsAre(HasSubstr("No.")));
    EXPECT_EQ(services_.notifications.notifications.back().soundName, "bell");
    EXPECT_THAT(services_.notifications.notifications.back().actions,
                ElementsAre(UserNotification::Action{"go", "Go"}));
}

TEST_F(ActionsTest, PlayTheSoundOrElseTheOneOfTheProgram) {
    services_.sounds.named.insert({"Bell", {"/theme/bell"}});
    services_.sounds.files = {"file:///a.wav"};
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
        EXPECT_EQ(services_.sounds.played().back(), played);
        EXPECT_THAT(log_.takeLines(), testing::SizeIs(warns ? 1 : 0));
        EXPECT_EQ(outcomes_, "");
        services_.sounds.end({.hasFinished = !warns, .problem = "Broken."});
        EXPECT_EQ(outcomes_, warns ? "false " : "true ");
    }
    EXPECT_THAT(log_.takeLines(), ElementsAre(HasSubstr("Broken.")));
}

TEST_F(ActionsTest, CopyNavigateUpdateOpenCloseAndTerminate) {
    const auto navigator = std::make_shared<Navigator>();
    slides_->addObserver(navigator);
    const auto runs = [this](std::string_view type, std::string_view keys) {
        run(fmt::format("<key>Type</key><string>{}</string>{}", type, keys));
        return outcomes_;
    };
    EXPECT_EQ(runs("CopyToClipboard", "<key>Text</key><string>first</string>"), "true ");
    EXPECT_THAT(log_.takeLines(), ElementsAre(HasSubstr("first")));
    services_.pasteboard.accepts = false;
    EXPECT_EQ(runs("CopyToClipboard", "<key>Text</key><string>x</string><key>Log</key><false/>"), "false ");
    EXPECT_EQ(services_.pasteboard.content, "first");
    EXPECT_THAT(log_.takeLines(), ElementsAre(HasSubstr("error: ")));

    EXPECT_EQ(runs("NavigateToSlide", "<key>Index</key><integer>1</integer>"), "true ");
    EXPECT_EQ(runs("NavigateToSlide", "<key>Offset</key><integer>-3</integer>"), "true ");
    EXPECT_EQ(navigator->requests, "index 1 offset -3 ");

    EXPECT_EQ(runs("UpdateVariable",
                   "<key>Variable</key><string>${V}</string><key>NewValue</key><string>1</string>"),
              "true ");
    EXPECT_EQ(services_.variables->variables()->at("V"), "1");
    ActionItem::UpdateVariable update;
    update._variable.set("${USER_NAME}");
    run(std::make_shared<const ActionItem>(ActionItem{update}));
    EXPECT_EQ(outcomes_, "false ");
    EXPECT_THAT(log_.takeLines(),
                Contains(HasSubstr("Updating placeholders with the 'UpdateVariable' action is not allowed")));

    EXPECT_EQ(runs("OpenWindow", fmt::format("<key>Slide</key>{}<key>Size</key><dict><key>Width</key>"
                                             "<integer>300</integer><key>Height</key><integer>200</integer>"
                                             "</dict>",
                                             slide)),
              "true ");
    ASSERT_NE(services_.windows.openItem, nullptr);
    EXPECT_EQ(services_.windows.openItem->_size()._width(), 300);
    EXPECT_EQ(runs("CloseOpenedWindow", ""), "true ");
    EXPECT_EQ(services_.windows.openItem, nullptr);

    EXPECT_EQ(runs("TerminateApp", ""), "true ");
    EXPECT_EQ(terminations_, 1);
}

} // namespace
} // namespace velmar
