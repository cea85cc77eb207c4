#include <Views/Content/Containers/ContainerViewController.h>

#include <Desktop/DesktopAppearance.h>
#include <Views/Content/Components/Spacer.h>
#include <Views/Content/Components/Text.h>
#include <Views/Content/Containers/ContainerViewModel.h>
#include <Views/CustomViews/Colors.h>
#include <Views/CustomViews/Theme.h>

#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace velmar {

namespace {

// Points.
constexpr int borderInset = 8;
constexpr qreal borderRadius = 8;

QMargins standardMargins(ContainerViewController::Kind kind) {
    using enum ContainerViewController::Kind;
    switch (kind) {
    case inSoleSlide:
        return {48, 40, 48, 40};
    case inMenuBarSlide:
        return {16, 16, 16, 16};
    case inSidebar:
        return {24, 32, 24, 32};
    case inSlide:
        break;
    }
    return {32, 40, 32, 40};
}

QAbstractSlider::SliderAction scrollAction(int key) {
    switch (key) {
    case Qt::Key_Up:
        return QAbstractSlider::SliderSingleStepSub;
    case Qt::Key_Down:
        return QAbstractSlider::SliderSingleStepAdd;
    case Qt::Key_PageUp:
        return QAbstractSlider::SliderPageStepSub;
    case Qt::Key_PageDown:
        return QAbstractSlider::SliderPageStepAdd;
    case Qt::Key_Home:
        return QAbstractSlider::SliderToMinimum;
    case Qt::Key_End:
        return QAbstractSlider::SliderToMaximum;
    default:
        return QAbstractSlider::SliderNoAction;
    }
}

/// False where the key doesn't scroll or there is nothing to scroll.
bool scrollBy(int key, QScrollBar &scrollBar) {
    const QAbstractSlider::SliderAction action = scrollAction(key);
    if (action == QAbstractSlider::SliderNoAction || scrollBar.maximum() == 0) {
        return false;
    }
    scrollBar.triggerAction(action);
    return true;
}

/// Leaves the keys that don't scroll, such as those for going from slide to slide, to the window.
class ColumnScrollArea final : public QScrollArea {
public:
    using QScrollArea::QScrollArea;

protected:
    void keyPressEvent(QKeyEvent *event) override {
        const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
        event->setAccepted(isPlain && scrollBy(event->key(), *verticalScrollBar()));
    }

    // The container draws the ring.
    void focusInEvent(QFocusEvent *event) override {
        QScrollArea::focusInEvent(event);
        parentWidget()->update();
    }
    void focusOutEvent(QFocusEvent *event) override {
        QScrollArea::focusOutEvent(event);
        parentWidget()->update();
    }
};

ComponentView *makeView(const ComponentItem &item, QWidget *parent) {
    struct Maker {
        QWidget *parent;
        ComponentView *operator()(const ComponentItem::Text &text) const {
            return new ComponentViews::Text(text, parent);
        }
        ComponentView *operator()(const ComponentItem::Spacer &spacer) const {
            return new ComponentViews::Spacer(spacer, parent);
        }
    };
    return std::visit(Maker{parent}, item.value);
}

/// What a reader of the screen calls the container: its first text.
QString accessibleNameOf(const ContainerItem &item) {
    for (const ComponentItem &component : item._components()) {
        if (const auto *text = std::get_if<ComponentItem::Text>(&component.value)) {
            return QString::fromStdString(text->_text());
        }
    }
    //% "Content"
    return qtTrId("content.container");
}

} // namespace

ContainerViewController::ContainerViewController(const ContainerItem &item, Kind kind,
                                                 const std::optional<ColorItem> &slideBorderColor,
                                                 QWidget *parent)
    : QWidget(parent),
      kind_(kind),
      viewModel_(std::make_shared<ContainerViewModel>()),
      borderColorItem_(item._borderColor() ? item._borderColor() : slideBorderColor),
      scrollArea_(new ColumnScrollArea(this)) {
    auto *column = new QWidget;
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(ComponentViews::marginsOf(item._margins(), standardMargins(kind)));
    layout->setSpacing(0);
    for (const ComponentItem &component : item._components()) {
        ComponentView *view = makeView(component, column);
        layout->addWidget(view, view->isFlexible() ? 1 : 0);
        componentViews_.push_back(view);
    }
    if (std::ranges::none_of(componentViews_, &ComponentView::isFlexible)) {
        layout->addStretch(1);
    }

    scrollArea_->setAccessibleName(accessibleNameOf(item));
    scrollArea_->setFrameShape(QFrame::NoFrame);
    scrollArea_->setWidgetResizable(true);
    scrollArea_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrollArea_->setWidget(column);
    column->setAutoFillBackground(false);
    scrollArea_->viewport()->setAutoFillBackground(false);
    // A stop of the Tab key only while there is something to scroll.
    scrollArea_->setFocusPolicy(Qt::NoFocus);
    connect(scrollArea_->verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this](int /*minimum*/, int maximum) {
                if (maximum == 0 && window()->focusWidget() == scrollArea_) {
                    focusNextPrevChild(true);
                }
                scrollArea_->setFocusPolicy(maximum > 0 ? Qt::TabFocus : Qt::NoFocus);
            });

    auto *outer = new QVBoxLayout(this);
    const int inset = borderColorItem_ ? borderInset + 1 : 0;
    outer->setContentsMargins(inset, inset, inset, inset);
    outer->addWidget(scrollArea_);
    if (kind_ == Kind::inSidebar) {
        setAutoFillBackground(true);
        setBackgroundRole(QPalette::AlternateBase);
    }
    updateBorderColor();
}

ContainerViewController::~ContainerViewController() = default;

bool ContainerViewController::scroll(int key) {
    return scrollBy(key, *scrollArea_->verticalScrollBar());
}

void ContainerViewController::updateBorderColor() {
    if (borderColorItem_) {
        borderColor_ = qColor(Color::of(*borderColorItem_, DesktopAppearance::isDark(palette())));
        update();
    }
}

void ContainerViewController::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        updateBorderColor();
    }
}

void ContainerViewController::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    if (borderColor_) {
        constexpr qreal inset = borderInset + 0.5;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(*borderColor_);
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), borderRadius,
                                borderRadius);
    }
    if (kind_ == Kind::inSidebar) {
        painter.fillRect(QRect(width() - 1, 0, 1, height()), palette().color(QPalette::Mid));
    }
    if (scrollArea_->hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        constexpr qreal inset = Theme::focusRingRoom;
        const QRectF shape(scrollArea_->geometry());
        Theme::drawFocusRing(painter, shape.adjusted(inset, inset, -inset, -inset), palette());
    }
}

} // namespace velmar
