#pragma once

#include <Views/Content/Components/Base.h>

namespace velmar {

class StyleConfigurableTextView;

namespace ComponentViews {

/// The view of a text component.
class Text final : public Base<ComponentItem::Text> {
public:
    Text(ComponentItem::Text item, MainQueue &mainQueue, QWidget *parent);
    [[nodiscard]] QString title() const override;

protected:
    void refresh() override;

private:
    StyleConfigurableTextView *textView_;
};

} // namespace ComponentViews

} // namespace velmar
