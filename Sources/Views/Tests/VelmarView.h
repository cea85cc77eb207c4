#pragma once

#include "ViewTest.h"
#include <Support/AppManagerFixture.h>

#include <Base/NavigationNotifications.h>
#include <Views/Content/ContentView/ContentViewController.h>
#include <Views/Navigation/NavigationViewController.h>
#include <Views/VelmarViewController.h>

#include <QKeyEvent>
#include <QVBoxLayout>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// Counts the attempts to quit.
class QuitAttempts final : public AppTerminationManagerProtocol {
public:
    void tryToQuitApplication() override { ++count; }
    int count = 0;
};

/// Fixture with all views of a configuration with three slides; the first slide scrolls.
class VelmarView : public ViewTest<AppManagerFixture> {
protected:
    VelmarView() {
        // Registered before the view: a post is recorded before the posts that it causes.
        for (const std::string_view name : notifications) {
            observers_.push_back(
                center.addObserver(std::string(name), [this, name] { posted.push_back(name); }));
        }
        std::string lines;
        for (int index = 0; index < 60; ++index) {
            lines += textComponent(fmt::format("Line {}", index));
        }
        write("Simple", slideOf(lines) + slideOf(textComponent("Second")) + slideOf(textComponent("Third")));
        shared_ = std::make_unique<AppManager::Scope>(makeAppManager());
        view = std::make_unique<VelmarViewController>(
            services.bundle, appearance(),
            VelmarViewController::Application{
                quits,
                [](bool byResetingVariables) { AppManager::shared()->reloadInterface(byResetingVariables); },
                center},
            &window);
        (new QVBoxLayout(&window))->addWidget(view.get());
        content = view->findChild<ContentViewController *>();
        bar = view->findChild<NavigationViewController *>();
        window.resize(600, 400);
        window.show();
        window.activateWindow();
        settle();
    }

    void write(std::string_view mode, const std::string &slides) {
        writeConfiguration(fmt::format("<key>Window</key><dict><key>OnScreen</key><string>{}</string></dict>"
                                       "<key>MenuBarSlide</key>{}"
                                       "<key>Navigation</key><dict>"
                                       "<key>PreviousButtonText</key><string>Back</string>"
                                       "<key>NextButtonText</key><string>On</string>"
                                       "<key>QuitButtonText</key><string>Done</string>"
                                       "<key>InstallationIncompleteQuitText</key>"
                                       "<string>Not before all is installed</string></dict>",
                                       mode, slideOf(textComponent("Below the menu bar"))),
                           0644, slides);
    }

    void press(int key, bool repeats = false) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, {}, repeats);
        QCoreApplication::sendEvent(view.get(), &event);
        settle();
    }

    static constexpr std::string_view notifications[] = {
        NavigationNotifications::willNavigateToNextSlide,
        NavigationNotifications::willNavigateToPreviousSlide,
        NavigationNotifications::slideHasInvalidMandatoryElements,
        NavigationNotifications::allMandatoryElementsInSlideAreValid,
        NavigationNotifications::currentSlideWantsToHidePreviousButton,
        NavigationNotifications::currentSlideWantsToHideNextButton,
        NavigationNotifications::evaluateButtonsHide,
        NavigationNotifications::willReachFirstSlide,
        NavigationNotifications::willReachLastSlide,
        NavigationNotifications::willReachSoleSlide,
        NavigationNotifications::navigateToNthSlide,
        NavigationNotifications::didReachFirstSlide,
        NavigationNotifications::didReachLastSlide,
        NavigationNotifications::didReachSoleSlide};

    NotificationCenter center;
    std::vector<std::string_view> posted;
    QuitAttempts quits;
    QWidget window;
    std::unique_ptr<VelmarViewController> view;
    ContentViewController *content = nullptr;
    NavigationViewController *bar = nullptr;

private:
    std::vector<NotificationObserver> observers_;
    std::unique_ptr<AppManager::Scope> shared_;
};

} // namespace velmar
