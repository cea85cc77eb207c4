#pragma once

#include <Views/Content/Components/Base.h>

namespace velmar::ComponentViews {

/// Empty space of a height, or all that is left.
class Spacer final : public Base<ComponentItem::Spacer> {
public:
    Spacer(ComponentItem::Spacer item, MainQueue &mainQueue, QWidget *parent);
    [[nodiscard]] bool isFlexible() const override { return !item()._height(); }
};

} // namespace velmar::ComponentViews
