#pragma once

#include <QObject>

#include <memory>

class QAction;
class QMenuBar;
class QWidget;

namespace velmar {

class MainMenu;
struct MenuItem;

/// Shows the application's menus in a window. The actions belong to the window as well, so that their
/// shortcuts work without the bar, which is made when it is first to be seen or the window has been painted:
/// it would hold the paint up.
class MenuBar final : public QObject {
    Q_OBJECT

public:
    /// The menu must outlive the bar. The window has its layout already.
    MenuBar(MainMenu &menu, QWidget &window);
    ~MenuBar() override;

    /// Makes the bar if it is one to be seen.
    void windowWillPaint();

    /// Makes the bar, so that assistive technologies find the menus also while it is hidden.
    void prepare() { bar(); }

    /// Shows a hidden bar until its menu closes, and opens the first menu.
    void reveal();

private:
    void rebuild();
    void fill(QMenuBar &bar);
    QAction *makeAction(const MenuItem &item);
    /// Made where there is none.
    QMenuBar &bar();

    MainMenu &menu_;
    QWidget &window_;
    QMenuBar *bar_ = nullptr;          // Owned by the window; null until it is wanted.
    std::unique_ptr<QObject> actions_; // Owns the actions of the present items.
};

} // namespace velmar
