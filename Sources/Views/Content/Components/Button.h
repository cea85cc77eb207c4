#pragma once

#include <Actions/ActionDispatcher.h>
#include <Core/Trigger.h>
#include <Views/Content/Components/Base.h>

#include <memory>
#include <optional>

namespace velmar {

class StyleConfigurableButton;

namespace ComponentViews {

/// A button that runs a set of actions and fires a trigger.
class Button final : public Base<ComponentItem::Button> {
public:
    /// `mainQueue` must outlive the view. A null dispatcher selects the application's one at the time of a
    /// click.
    Button(ComponentItem::Button item, MainQueue &mainQueue, QWidget *parent,
           std::shared_ptr<ActionDispatcherProtocol> dispatcher = nullptr, Trigger trigger = Trigger());

    [[nodiscard]] QString title() const override;

protected:
    void refresh() override;

private:
    void clicked();

    Trigger _trigger;
    std::shared_ptr<ActionDispatcherProtocol> dispatcher_;
    StyleConfigurableButton *buttonView_;
    std::optional<ActionSet> onClick_; // Has the same identity for all clicks.
};

} // namespace ComponentViews

} // namespace velmar
