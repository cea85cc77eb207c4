#include "MenuBar.h"

#include <Desktop/MainMenu.h>

#include <QMenu>

namespace velmar {

namespace {

QKeySequence keySequence(const KeyShortcut &shortcut) {
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ControlModifier, shortcut.command);
    modifiers.setFlag(Qt::MetaModifier, shortcut.control);
    modifiers.setFlag(Qt::AltModifier, shortcut.option);
    modifiers.setFlag(Qt::ShiftModifier, shortcut.shift);
    return QKeySequence(QKeyCombination(modifiers, static_cast<Qt::Key>(shortcut.key)));
}

} // namespace

MenuBar::MenuBar(MainMenu &menu, QWidget &window) : QMenuBar(&window), menu_(menu), window_(window) {
    setNativeMenuBar(false);
    rebuild();
    menu_.onChange([this] { rebuild(); });
}

MenuBar::~MenuBar() {
    menu_.onChange(nullptr);
}

void MenuBar::reveal() {
    if (actions().isEmpty()) {
        return;
    }
    show();
    setActiveAction(actions().constFirst());
}

void MenuBar::rebuild() {
    clear();
    if (actions_) {
        // Shortcuts end at once; the action itself may be what replaces the items, and goes when its event is
        // over.
        for (QAction *action : actions_->findChildren<QAction *>()) {
            window_.removeAction(action);
        }
        actions_.release()->deleteLater();
    }
    actions_ = std::make_unique<QObject>();
    for (const MenuItem &item : menu_.items()) {
        auto *menu = new QMenu(QString::fromStdString(item.title), this);
        connect(actions_.get(), &QObject::destroyed, menu, &QObject::deleteLater);
        for (const MenuItem &entry : item.submenu) {
            add(*menu, entry);
        }
        addMenu(menu);
    }
    const bool hasMoreThanOwnMenu = menu_.items().size() > 1;
    setVisible(hasMoreThanOwnMenu);
    if (!hasMoreThanOwnMenu && !actions().isEmpty()) {
        connect(actions().constFirst()->menu(), &QMenu::aboutToHide, this, &QWidget::hide);
    }
}

void MenuBar::add(QMenu &parent, const MenuItem &item) {
    auto *action = new QAction(QString::fromStdString(item.title), actions_.get());
    if (item.shortcut) {
        action->setShortcut(keySequence(*item.shortcut));
    }
    connect(action, &QAction::triggered, this, [run = item.action] {
        if (run) {
            run();
        }
    });
    parent.addAction(action);
    window_.addAction(action);
}

} // namespace velmar
