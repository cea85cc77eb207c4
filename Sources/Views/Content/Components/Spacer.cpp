#include <Views/Content/Components/Spacer.h>

#include <algorithm>
#include <cmath>

namespace velmar::ComponentViews {

Spacer::Spacer(ComponentItem::Spacer item, QWidget *parent) : Base(std::move(item), {}, parent) {
    auto *spacerView = new QWidget(this);
    if (const auto &height = this->item()._height()) {
        spacerView->setFixedHeight(static_cast<int>(std::lround(std::clamp(*height, 0.0, 16384.0))));
    }
    setContentView(spacerView);
}

} // namespace velmar::ComponentViews
