#pragma once

#include <Views/Content/Components/Base.h>

namespace velmar::ComponentViews {

/// Empty space of a given height, or else the remaining height.
class Spacer final : public Base<ComponentItem::Spacer> {
public:
    Spacer(ComponentItem::Spacer item, MainQueue &mainQueue, QWidget *parent);
    [[nodiscard]] bool isFlexible() const override { return !item()._height(); }
};

} // namespace velmar::ComponentViews
