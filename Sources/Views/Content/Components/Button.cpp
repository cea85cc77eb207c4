#include <Views/Content/Components/Button.h>

#include <Views/CustomViews/Font.h>
#include <Views/CustomViews/StyleConfigurableButton.h>

#include <logger/Logger.h>

#include <QVBoxLayout>

#include <utility>

namespace velmar::ComponentViews {

namespace {
constexpr QMargins standardMargins(0, 4, 0, 4);
}

Button::Button(ComponentItem::Button item, MainQueue &mainQueue, QWidget *parent,
               std::shared_ptr<ActionDispatcherProtocol> dispatcher, Trigger trigger)
    : Base(std::move(item), standardMargins, mainQueue, parent),
      _trigger(std::move(trigger)),
      dispatcher_(std::move(dispatcher)) {
    if (const auto &set = this->item()._onClick()) {
        const auto kept = std::make_shared<const ActionSetItem>(*set);
        onClick_ = ActionSet{UUID(), {kept, &kept->set}};
    }
    auto *row = new QWidget(this);
    auto *layout = new QVBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    buttonView_ = new StyleConfigurableButton(this->item()._style(), row);
    layout->addWidget(buttonView_, 0, alignmentOf(this->item()._alignment()));
    Button::refresh();
    setContentView(row);
    connect(buttonView_, &QAbstractButton::clicked, this, &Button::clicked);
}

QString Button::title() const {
    return QString::fromStdString(item()._text().value_or(""));
}

void Button::refresh() {
    buttonView_->setContent(QString::fromStdString(item()._text().value_or("")), item()._color());
    emit titleDidChange();
}

void Button::clicked() {
    if (onClick_) {
        (dispatcher_ ? dispatcher_ : ActionDispatcher::shared())->dispatch(*onClick_, nullptr);
    }
    if (const auto trigger = item()._trigger()) {
        if (const auto handler = _trigger.wrappedValue()) {
            handler->dispatchSetsFor(*trigger);
        }
    }
    if (item()._popover()) {
        Logger::warning("Popovers of buttons cannot be shown yet");
    }
}

} // namespace velmar::ComponentViews
