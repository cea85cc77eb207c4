#include <Views/Content/Components/Text.h>

#include <Views/CustomViews/StyleConfigurableTextView.h>

namespace velmar::ComponentViews {

namespace {
constexpr QMargins standardMargins(0, 4, 0, 4);
}

Text::Text(ComponentItem::Text item, MainQueue &mainQueue, QWidget *parent)
    : Base(std::move(item), standardMargins, mainQueue, parent),
      textView_(new StyleConfigurableTextView(this)) {
    Text::refresh();
    setContentView(textView_);
}

QString Text::title() const {
    return textView_->text();
}

void Text::refresh() {
    textView_->setContent(QString::fromStdString(item()._text()), item()._font());
    emit titleDidChange();
}

} // namespace velmar::ComponentViews
