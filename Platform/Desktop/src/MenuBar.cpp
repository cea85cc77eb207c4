#include "MenuBar.h"

#include <Desktop/LiteralLabel.h>

#include <QAction>
#include <QApplication>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <QWidget>

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

MenuBar::MenuBar(MainMenu &menu, QWidget &window, Visibility visibility)
    : menu_(menu), window_(window), visibility_(visibility) {
    rebuild();
    observation_ = menu_.observe([this] { rebuild(); });
}

void MenuBar::reveal() {
    if (menu_.items().empty()) {
        return;
    }
    bar().show();
    bar().setActiveAction(bar().actions().constFirst());
}

void MenuBar::rebuild() {
    if (actions_) {
        // The shortcuts end at once. Deletion is deferred, because an action itself may replace the items.
        for (QAction *action : actions_->findChildren<QAction *>()) {
            window_.removeAction(action);
        }
        actions_.release()->deleteLater();
    }
    actions_ = std::make_unique<QObject>();
    for (const MenuItem &item : menu_.items()) {
        for (const MenuItem &entry : item.submenu) {
            window_.addAction(makeAction(entry));
        }
    }
    if (bar_ != nullptr) {
        fill(*bar_);
        bar_->setVisible(isOnShow());
    }
}

void MenuBar::windowWillPaint() {
    if (isOnShow()) {
        prepare();
    }
}

QAction *MenuBar::makeAction(const MenuItem &item) {
    auto *action = new QAction(literalLabel(QString::fromStdString(item.title)), actions_.get());
    if (item.shortcut) {
        action->setShortcut(keySequence(*item.shortcut));
    }
    connect(action, &QAction::triggered, this, [run = item.action] {
        if (run) {
            run();
        }
    });
    return action;
}

QMenuBar &MenuBar::bar() {
    if (bar_ == nullptr) {
        bar_ = new QMenuBar(&window_);
        bar_->setNativeMenuBar(false);
        fill(*bar_);
        window_.layout()->setMenuBar(bar_);
        bar_->setVisible(isOnShow());
    }
    return *bar_;
}

void MenuBar::fill(QMenuBar &bar) {
    bar.clear();
    // The children are the actions of the entries, in their order.
    auto action = actions_->children().cbegin();
    for (const MenuItem &item : menu_.items()) {
        auto *menu = new QMenu(literalLabel(QString::fromStdString(item.title)), &bar);
        connect(actions_.get(), &QObject::destroyed, menu, &QObject::deleteLater);
        for (std::size_t entry = 0; entry < item.submenu.size(); ++entry) {
            menu->addAction(qobject_cast<QAction *>(*action++));
        }
        bar.addMenu(menu);
        connect(menu, &QMenu::aboutToHide, this, &MenuBar::menuWillHide);
    }
}

void MenuBar::menuWillHide() {
    // Deferred: another menu may open next.
    QTimer::singleShot(0, bar_, [this] {
        if (!isOnShow() && QApplication::activePopupWidget() == nullptr) {
            bar_->hide();
        }
    });
}

} // namespace velmar
