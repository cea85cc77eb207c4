#pragma once

#include <Desktop/MainMenu.h>

#include <QObject>

#include <memory>

class QAction;
class QMenuBar;
class QWidget;

namespace velmar {

/// Shows the application's menus in a window. The actions belong to the window as well, so that their
/// shortcuts work without the bar, which is made when it is first to be seen or the window has been painted:
/// it would hold the paint up.
class MenuBar final : public QObject {
    Q_OBJECT

public:
    enum class Visibility {
        asNeeded, ///< While there are more menus than the application's own.
        revealed, ///< Only when it is asked for.
    };

    /// The menu must outlive the bar. The window has its layout already.
    MenuBar(MainMenu &menu, QWidget &window, Visibility visibility);

    /// Makes the bar if it is one to be seen.
    void windowWillPaint();

    /// Makes the bar, so that assistive technologies find the menus also while it is hidden.
    void prepare() { bar(); }

    /// Shows a hidden bar until its menu closes, and opens the first menu.
    void reveal();

private:
    void rebuild();
    void fill(QMenuBar &bar);
    void menuWillHide();
    QAction *makeAction(const MenuItem &item);
    /// Made where there is none.
    QMenuBar &bar();
    [[nodiscard]] bool isOnShow() const {
        return visibility_ == Visibility::asNeeded && menu_.items().size() > 1;
    }

    MainMenu &menu_;
    QWidget &window_;
    Visibility visibility_;
    QMenuBar *bar_ = nullptr;          // Owned by the window; null until it is wanted.
    std::unique_ptr<QObject> actions_; // Owns the actions of the present items.
    MainMenu::Observation observation_;
};

} // namespace velmar
