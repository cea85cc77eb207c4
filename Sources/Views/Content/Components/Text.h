#pragma once

#include <Views/Content/Components/Base.h>

namespace velmar::ComponentViews {

/// A paragraph.
class Text final : public Base<ComponentItem::Text> {
public:
    Text(ComponentItem::Text item, QWidget *parent);
};

} // namespace velmar::ComponentViews
