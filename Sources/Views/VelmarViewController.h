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

/// The whole of what the user sees: the slides, the bar that leads through them, and the container beside
/// them. Main thread.
class VelmarViewController final : public QWidget, public ContentViewModelTerminationDelegate {
    Q_OBJECT

public:
    /// The application behind the views. The references must outlive the controller.
    struct Application {
        AppTerminationManagerProtocol &terminationManager;
        /// Reads the configuration again; AppManager::reloadInterface.
        std::function<void(bool byResetingVariables)> reloadInterface;
        NotificationCenter &center = NotificationCenter::defaultCenter();
    };

    /// The appearance must outlive the controller.
    VelmarViewController(const Services &services, const DesktopAppearance &appearance,
                         Application application, QWidget *parent = nullptr);
    ~VelmarViewController() override;

    /// The administrator's menu actions: the interface is made anew from the configuration as it is then.
    void reloadInterfaceSavingVariables() { reload(false); }
    void reloadInterfaceResetingVariables() { reload(true); }

    [[nodiscard]] bool isSideContainerValid() const override;
    void showSideContainerWarnings() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void reload(bool byResetingVariables);
    /// Tells the user why a quit was refused.
    void setupQuitAlerts();
    void buildSideContainer();
    void buildNavigation();
    /// Tells the navigation where the current slide stands.
    void contentDidAppear();
    void contentWillLeave(const SlideViewController &slide);
    /// Puts the bar's buttons behind all that the slides hold.
    void orderTabStops();
    /// Gives the focus to the button that leads on, or to the nearest to it that is on show.
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
    std::shared_ptr<SideContainerMandatorySupervisor> sideContainerSupervisor_; // Null without the container.
    ContentViewController *contentViewController_ = nullptr;
    NavigationViewController *navigationViewController_ = nullptr;
    std::vector<NotificationObserver> observers_;
    const QWidget *shownIn_ = nullptr; // The window; null before the first show.
};

} // namespace velmar
