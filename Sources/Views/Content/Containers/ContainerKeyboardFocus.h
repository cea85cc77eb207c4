#pragma once

#include <QPointer>
#include <QWidget>

#include <optional>
#include <vector>

namespace velmar {

class ComponentView;

/// The keyboard focus within a container whose components are inserted and removed; see
/// docs/decisions/0031-focus-during-a-reload.md. Views are indexed by the positions of their items; nullptr
/// marks a missing view. Main thread.
class ContainerKeyboardFocus {
public:
    /// `column` contains the components and is in `scrollArea`. The widgets must outlive this object.
    ContainerKeyboardFocus(QWidget &container, QWidget &scrollArea, QWidget &column)
        : container_(container), scrollArea_(scrollArea), column_(column) {}

    /// Clears the focus if a widget in the column has it.
    void takeAway();

    /// Restores the focus to the widget that lost it, or to the surroundings of the container if that widget
    /// is gone or disabled. Does nothing if another widget has the focus.
    void giveBack(const std::vector<ComponentView *> &views);

    /// Sets the tab order: the scroll area, then the components in their order.
    void orderTabStops(const std::vector<ComponentView *> &views);

private:
    QWidget &container_;
    QWidget &scrollArea_;
    QWidget &column_;
    std::optional<QPointer<QWidget>> unfocused_; // The widget that lost the focus; null once destroyed.
};

} // namespace velmar
