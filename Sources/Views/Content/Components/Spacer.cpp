#include <Views/Content/Components/Spacer.h>

#include <algorithm>
#include <cmath>

namespace velmar::ComponentViews {

Spacer::Spacer(ComponentItem::Spacer item, MainQueue &mainQueue, QWidget *parent)
    : Base(std::move(item), {}, mainQueue, parent) {
    auto *spacerView = new QWidget(this);
    if (const auto &height = this->item()._height()) {
        spacerView->setFixedHeight(static_cast<int>(std::lround(std::clamp(*height, 0.0, 16384.0))));
    }
    setContentView(spacerView);
}

} // namespace velmar::ComponentViews
