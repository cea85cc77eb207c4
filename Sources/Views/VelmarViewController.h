#pragma once

#include <Configuration/Configuration.h>
#include <Foundation/NotificationCenter.h>
#include <Settings/Config.h>
#include <Views/Content/ContentView/ContentViewModel.h>

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

class QHBoxLayout;
class QVBoxLayout;

namespace velmar {

class ContainerViewController;
class ContentViewController;
class DesktopAppearance;
class NavigationViewController;
class SideContainerMandatorySupervisor;
class SlideViewController;
struct Services;

/// The root view: the slides, the navigation bar and the side container. Main thread.
class VelmarViewController final : public QWidget, public ContentViewModelTerminationDelegate {
    Q_OBJECT

public:
    /// Functions of the application used by the views. The references must outlive the controller.
    struct Application {
        AppTerminationManagerProtocol &terminationManager;
        /// Reads the configuration again; see AppManager::reloadInterface.
        std::function<void(bool byResetingVariables)> reloadInterface;
        NotificationCenter &center = NotificationCenter::defaultCenter();
    };

    /// `services` and `appearance` must outlive the controller.
    VelmarViewController(const Services &services, const DesktopAppearance &appearance,
                         Application application, QWidget *parent = nullptr);
    ~VelmarViewController() override;

    /// Rebuilds the views from the reloaded configuration. Called by the administrator's menu.
    void reloadInterfaceSavingVariables() { reload(false); }
    void reloadInterfaceResetingVariables() { reload(true); }

    [[nodiscard]] bool isSideContainerValid() const override;
    void showSideContainerWarnings() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void reload(bool byResetingVariables);
    /// Observes refused quits and shows the reason in an alert.
    void setupQuitAlerts();
    void buildSideContainer();
    void buildNavigation();
    /// Posts the position of the current slide to the navigation.
    void contentDidAppear();
    void contentWillLeave(const SlideViewController &slide);
    /// Moves the buttons of the bar to the end of the tab order.
    void orderTabStops();
    /// Gives the focus to the first visible of the next button, the previous button and this view.
    void focusNavigation();

    Config<NavigationSection> _navigation{
        [](const Configuration &c) -> decltype(auto) { return c._navigation(); }};
    Config<std::optional<SideContainerSection>> _sideContainer{
        [](const Configuration &c) -> decltype(auto) { return c._sideContainer(); }};
    const Services &services_;
    const DesktopAppearance &appearance_;
    Application application_;
    std::shared_ptr<ContentViewModel> contentViewModel_;
    QHBoxLayout *row_;
    QVBoxLayout *column_;
    ContainerViewController *sideContainerViewController_ = nullptr;
    std::shared_ptr<SideContainerMandatorySupervisor>
        sideContainerSupervisor_; // nullptr without a side container.
    ContentViewController *contentViewController_ = nullptr;
    NavigationViewController *navigationViewController_ = nullptr;
    std::vector<NotificationObserver> observers_;
    const QWidget *shownIn_ = nullptr; // The window; nullptr before the first show.
};

} // namespace velmar
