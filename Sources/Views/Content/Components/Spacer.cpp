#include <Views/Content/Components/Spacer.h>

#include <Views/CustomViews/Pixels.h>

namespace velmar::ComponentViews {

Spacer::Spacer(ComponentItem::Spacer item, MainQueue &mainQueue, QWidget *parent)
    : Base(std::move(item), {}, mainQueue, parent) {
    auto *spacerView = new QWidget(this);
    if (const auto &height = this->item()._height()) {
        spacerView->setFixedHeight(pixels(*height));
    }
    setContentView(spacerView);
}

} // namespace velmar::ComponentViews
