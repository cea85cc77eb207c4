#pragma once

#include <Desktop/MainMenu.h>

#include <QObject>

#include <memory>

class QAction;
class QMenuBar;
class QWidget;

namespace velmar {

/// Shows the application's menus in a window. The actions belong to the window, so that their shortcuts work
/// without the bar. The bar is created after the first paint, unless it is visible, because it would delay
/// the paint.
class MenuBar final : public QObject {
    Q_OBJECT

public:
    enum class Visibility {
        asNeeded, ///< Visible while there is a menu besides the application's own.
        revealed, ///< Visible only after reveal().
    };

    /// The menu must outlive the bar. The window must have a layout.
    MenuBar(MainMenu &menu, QWidget &window, Visibility visibility);

    /// Creates the bar if it is visible.
    void windowWillPaint();

    /// Creates the bar, so that assistive technologies find the menus even while it is hidden.
    void prepare() { bar(); }

    /// Shows the bar, opens the first menu, and hides the bar again when its menu closes.
    void reveal();

private:
    void rebuild();
    void fill(QMenuBar &bar);
    void menuWillHide();
    QAction *makeAction(const MenuItem &item);
    /// Returns the bar, creating it on first use.
    QMenuBar &bar();
    [[nodiscard]] bool isOnShow() const {
        return visibility_ == Visibility::asNeeded && menu_.items().size() > 1;
    }

    MainMenu &menu_;
    QWidget &window_;
    Visibility visibility_;
    QMenuBar *bar_ = nullptr;          // owned by the window; null until first used
    std::unique_ptr<QObject> actions_; // owns the actions of the current items
    MainMenu::Observation observation_;
};

} // namespace velmar
