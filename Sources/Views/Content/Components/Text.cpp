#include <Views/Content/Components/Text.h>

#include <Views/CustomViews/StyleConfigurableTextView.h>

namespace velmar::ComponentViews {

namespace {
constexpr QMargins standardMargins(0, 4, 0, 4);
}

Text::Text(ComponentItem::Text item, QWidget *parent) : Base(std::move(item), standardMargins, parent) {
    auto *textView = new StyleConfigurableTextView(this);
    textView->setContent(QString::fromStdString(this->item()._text()), this->item()._font());
    setContentView(textView);
}

} // namespace velmar::ComponentViews
