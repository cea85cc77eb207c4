#include <Actions/ActionSetManager.h>
#include <Base/NavigationNotifications.h>
#include <Configuration/Configuration.h>

#include <Support/RecordedLog.h>
#include <Support/TestServices.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace velmar {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// Records each fired set as the message of its only action, with "+" for an identity seen before.
class Dispatcher final : public ActionDispatcherProtocol {
public:
    void dispatch(const ActionSet &set, std::function<void()> completionHandler) override {
        EXPECT_EQ(completionHandler, nullptr);
        const auto &log = std::get<ActionItem::Log>(set.item->_actions().front().value);
        fired += log._message.rawValue() + (identities_.insert(set.id).second ? " " : "+ ");
    }
    std::string take() { return std::exchange(fired, {}); }
    std::string fired;

private:
    std::set<UUID> identities_;
};

using ActionSetItems = std::vector<TriggeredActionSetItem>;

std::shared_ptr<const ActionSetItems> sets(const std::vector<std::vector<const char *>> &triggersOfSets) {
    std::string text;
    char name = 'a';
    for (const auto &triggers : triggersOfSets) {
        text += "<dict><key>Type</key><string>Chained</string><key>Actions</key><array><dict><key>Type</key>"
                "<string>Log</string><key>Message</key><string>";
        text += name++;
        text += "</string></dict></array><key>Triggers</key><array>";
        for (const char *const trigger : triggers) {
            text += "<string>" + std::string(trigger) + "</string>";
        }
        text += "</array></dict>";
    }
    const auto file = PropertyList::read(
        "<plist version=\"1.0\"><dict><key>General</key><dict><key>Variables</key><dict><key>V</key><string/>"
        "</dict></dict><key>Slides</key><array>"
        "<dict><key>Containers</key><array><dict><key>Components</key><array><dict><key>Type</key>"
        "<string>Spacer</string></dict></array></dict></array></dict></array><key>ActionSets</key><array>" +
        text + "</array></dict></plist>");
    const auto configuration = Configuration::decode(file);
    return {configuration, &configuration->_actionSets()};
}

TEST(ActionSetManager, FiresTheSetsOfEachTrigger) {
    const RecordedLog log;
    NotificationCenter center;
    TestServices services;
    TestRunningApplications &applications = services.runningApplications;
    const auto store = services.variables;
    const auto dispatcher = std::make_shared<Dispatcher>();
    const auto items = sets({{"NextButtonClick", "Update(V)", "NextButtonClick"},
                             {"PreviousButtonClick", "Custom(Go)"},
                             {"Custom(Go)", "Custom(Away)", "Launch", "Termination"},
                             {"AppLaunch(org\\..*)", "NextButtonClick"},
                             {"AppLaunch(Calc)", "AppLaunch(org\\..*)"}});
    auto manager = ActionSetManager::make(items, services.bundle, center, dispatcher);
    center.post(NavigationNotifications::willNavigateToNextSlide);
    EXPECT_EQ(dispatcher->take(), "a d ");
    store->updateVariable("V", "1", false);
    store->updateVariable("V", "1", false);
    store->updateVariable("W", "1", false);
    EXPECT_EQ(dispatcher->take(), "a+ "); // The set has the same identity under both triggers.
    center.post(NavigationNotifications::willNavigateToPreviousSlide);
    EXPECT_EQ(dispatcher->take(), "b ");
    manager->dispatchSetsFor("Go");
    EXPECT_EQ(dispatcher->take(), "b+ c ");
    for (const char *const application : {"org.Calc", "com.Calc", "com.other", ""}) {
        applications.start(application);
    }
    EXPECT_EQ(dispatcher->take(), "e d+ e+ e+ ");

    manager->dispatchSetsFor("Nowhere");
    EXPECT_EQ(dispatcher->take(), "");
    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("Trying to execute Action sets for trigger 'Nowhere' "
                                                   "although the trigger is not registered.")));
    EXPECT_THAT(log.lines().front(), HasSubstr("Registered triggers: Away,Go"));

    manager.reset();
    center.post(NavigationNotifications::willNavigateToNextSlide);
    store->updateVariable("V", "2", false);
    applications.start("org.Calc");
    EXPECT_EQ(dispatcher->take(), "");
    EXPECT_EQ(applications.observations(), 0U);
}

TEST(ActionSetManager, LooksAtRunningApplicationsOnlyForASetOfTheirs) {
    TestServices services;
    NotificationCenter center;
    const auto manager =
        ActionSetManager::make(sets({{"Launch"}}), services.bundle, center, std::make_shared<Dispatcher>());
    EXPECT_EQ(services.runningApplications.observations(), 0U);
}

} // namespace
} // namespace velmar
