#pragma once

#include <QWidget>

namespace velmar {

/// Gives the keyboard focus to the nearest ancestor of `widget` that accepts it, or else to the window, so
/// that keys still work.
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
