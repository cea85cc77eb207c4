#pragma once

#include <QPointer>
#include <QWidget>

#include <optional>
#include <vector>

namespace velmar {

class ComponentView;

/// The keyboard's way through the components of a container, while they come and go:
/// docs/decisions/0031-focus-during-a-reload.md. Views are given by the positions of their items; null for
/// none. Main thread.
class ContainerKeyboardFocus {
public:
    /// The column of the components, which the scroll area holds; all of them outlive this.
    ContainerKeyboardFocus(QWidget &container, QWidget &scrollArea, QWidget &column)
        : container_(container), scrollArea_(scrollArea), column_(column) {}

    /// Takes the focus from what has it in the column.
    void takeAway();

    /// Gives the focus back to what has lost it, or to the nearest around the container if that is gone.
    void giveBack(const std::vector<ComponentView *> &views);

    /// Has the Tab key go through the components in their order, from the scroll area on.
    void orderTabStops(const std::vector<ComponentView *> &views);

private:
    QWidget &container_;
    QWidget &scrollArea_;
    QWidget &column_;
    std::optional<QPointer<QWidget>> unfocused_; // What has lost the focus; null if it has gone meanwhile.
};

} // namespace velmar
