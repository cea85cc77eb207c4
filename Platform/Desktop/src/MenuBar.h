#pragma once

#include <QMenuBar>

#include <memory>

namespace velmar {

class MainMenu;
struct MenuItem;

/// Shows the application's menus. The actions belong to the window as well, so that their shortcuts work
/// while the bar is hidden.
class MenuBar final : public QMenuBar {
    Q_OBJECT

public:
    /// The menu must outlive the bar.
    MenuBar(MainMenu &menu, QWidget &window);
    ~MenuBar() override;

    /// Shows a hidden bar until its menu closes, and opens the first menu.
    void reveal();

private:
    void rebuild();
    void add(QMenu &parent, const MenuItem &item);

    MainMenu &menu_;
    QWidget &window_;
    std::unique_ptr<QObject> actions_; // Owns what `rebuild` makes.
};

} // namespace velmar
