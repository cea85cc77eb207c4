#pragma once

#include <QWidget>

namespace velmar {

/// Gives the keyboard's focus to the nearest widget around another one that takes it, or to the window: keys
/// go on to work there, and nothing shows a ring.
inline void giveFocusToSurroundings(const QWidget &widget) {
    QWidget *around = widget.parentWidget();
    while (around != nullptr && !around->isWindow() && around->focusPolicy() == Qt::NoFocus) {
        around = around->parentWidget();
    }
    if (around != nullptr) {
        around->setFocus();
    }
}

} // namespace velmar
