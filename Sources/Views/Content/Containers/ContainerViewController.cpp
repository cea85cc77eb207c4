#include <Views/Content/Containers/ContainerViewController.h>

#include <Base/Services.h>
#include <Desktop/DesktopAppearance.h>
#include <Views/Content/Components/Base.h>
#include <Views/Content/Components/ComponentTable.h>
#include <Views/Content/Containers/ContainerViewManagementAnimator.h>
#include <Views/Content/Containers/ContainerViewModel.h>
#include <Views/CustomViews/Colors.h>
#include <Views/CustomViews/ColumnScrollArea.h>
#include <Views/CustomViews/Theme.h>

#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace velmar {

namespace {

// Points.
constexpr int borderInset = 8;
constexpr qreal borderRadius = 8;

// Flexible components take the remaining height; the space after the last component takes it otherwise.
constexpr int flexibleStretch = 0x10000;
constexpr int restStretch = 1;

int stretchOf(const ComponentView &view) {
    return view.isFlexible() ? flexibleStretch : 0;
}

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

} // namespace

ContainerViewController::ContainerViewController(const ContainerItem &item, Kind kind,
                                                 const std::optional<ColorItem> &slideBorderColor,
                                                 const Services &services,
                                                 const DesktopAppearance &appearance, QWidget *parent,
                                                 const std::shared_ptr<ConditionEvaluator> &conditions)
    : QWidget(parent),
      kind_(kind),
      services_(services),
      appearance_(appearance),
      viewModel_(std::make_shared<ContainerViewModel>()),
      borderColorItem_(item._borderColor() ? item._borderColor() : slideBorderColor),
      column_(new QWidget),
      layout_(new QVBoxLayout(column_)),
      scrollArea_(new ColumnScrollArea(column_, this)),
      keyboardFocus_(*this, *scrollArea_, *column_) {
    const std::vector<ComponentItem> &items = item._components();
    const VariableNames conditionVariables = componentsConditions(items, *conditions);
    if (!conditionVariables.empty()) {
        variablesRefresh_.emplace(services_.mainQueue, [this] { components_->reload(); });
        variablesRefresh_->follow(conditionVariables);
    }
    components_.emplace(items, conditions, *this);
    layout_->setContentsMargins(ComponentViews::marginsOf(item._margins(), standardMargins(kind)));
    layout_->setSpacing(0);
    for (std::size_t position = 0; position < items.size(); ++position) {
        places_.push_back(new QSpacerItem(0, 0));
        layout_->addItem(places_.back());
        componentViews_.push_back(components_->isShown(position) ? makeView(position) : nullptr);
        if (const ComponentView *view = componentViews_.back()) {
            layout_->addWidget(componentViews_.back(), stretchOf(*view));
        }
    }
    layout_->addStretch(restStretch);
    updateTitle();

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
    return scrollArea_->scroll(key);
}

ComponentView *ContainerViewController::makeView(std::size_t position) {
    const ComponentItem &item = components_->items()[position];
    ComponentView *view = componentTable().factoryFor(item)(item, services_, column_);
    connect(view, &ComponentView::titleDidChange, this, &ContainerViewController::updateTitle);
    if (const auto element = view->mandatoryElement()) {
        element->setMandatorySupervisor(viewModel_);
    }
    return view;
}

void ContainerViewController::putInPlace(std::size_t position) {
    ComponentView *view = componentViews_[position];
    layout_->insertWidget(layout_->indexOf(places_[position]) + 1, view, stretchOf(*view));
    // Screen readers visit the views in sibling order.
    const auto next = std::find_if(componentViews_.begin() + static_cast<std::ptrdiff_t>(position) + 1,
                                   componentViews_.end(), [](const auto *other) { return other != nullptr; });
    if (next != componentViews_.end()) {
        view->stackUnder(*next);
    }
}

void ContainerViewController::takeKeyboardFocusAway() {
    if (isOnShow_) {
        keyboardFocus_.takeAway();
    }
}

void ContainerViewController::giveKeyboardFocusBack() {
    keyboardFocus_.giveBack(componentViews_);
}

void ContainerViewController::prepare(const ComponentsChange &change) {
    const bool isAnimated = isOnShow_ && isVisible() && appearance_.isAnimated();
    // The former animator may be calling its completion.
    if (viewManagementAnimator_ != nullptr) {
        viewManagementAnimator_->deleteLater();
    }
    viewManagementAnimator_ = new ContainerViewManagementAnimator(column_, isAnimated);
    for (const std::size_t position : change.removed) {
        ComponentView *view = std::exchange(componentViews_[position], nullptr);
        if (const auto element = view->mandatoryElement()) {
            viewModel_->elementWasRemoved(*element);
        }
        viewManagementAnimator_->viewsToRemove.push_back(view);
    }
    for (const std::size_t position : change.inserted) {
        componentViews_[position] = makeView(position);
        componentViews_[position]->hide();
        viewManagementAnimator_->viewsToInsert.push_back(componentViews_[position]);
    }
}

void ContainerViewController::animateRemoval(std::function<void()> completion) {
    viewManagementAnimator_->animateRemoval(std::move(completion));
}

void ContainerViewController::rebuildLayout() {
    for (ComponentView *view : std::exchange(viewManagementAnimator_->viewsToRemove, {})) {
        view->deleteLater();
    }
    // In reverse: each view is stacked under its successor.
    for (std::size_t position = componentViews_.size(); position-- > 0;) {
        if (componentViews_[position] != nullptr && layout_->indexOf(componentViews_[position]) < 0) {
            putInPlace(position);
        }
    }
    keyboardFocus_.orderTabStops(componentViews_);
    updateTitle();
}

void ContainerViewController::animateInsertion(std::function<void()> completion) {
    viewManagementAnimator_->animateInsertion(std::move(completion));
}

QString ContainerViewController::title() const {
    for (const ComponentView *view : componentViews_) {
        if (view != nullptr && !view->title().isEmpty()) {
            return view->title();
        }
    }
    return {};
}

void ContainerViewController::updateTitle() {
    const QString present = title();
    //% "Content"
    scrollArea_->setAccessibleName(present.isEmpty() ? qtTrId("content.container") : present);
    emit titleDidChange();
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
        // On the edge next to the slides.
        painter.fillRect(QRect(isRightToLeft() ? 0 : width() - 1, 0, 1, height()),
                         palette().color(QPalette::Mid));
    }
    if (scrollArea_->hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        constexpr qreal inset = Theme::focusRingRoom;
        const QRectF shape(scrollArea_->geometry());
        Theme::drawFocusRing(painter, shape.adjusted(inset, inset, -inset, -inset), palette());
    }
}

} // namespace velmar
