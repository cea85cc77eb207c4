#pragma once

#include <Configuration/ComponentItem.h>
#include <Views/Content/MandatorySupervision.h>
#include <Views/Content/VariablesRefresh.h>

#include <QVBoxLayout>
#include <QWidget>

#include <memory>
#include <optional>

namespace velmar {

/// One component of a container on screen.
class ComponentView : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// True where the component takes the height that the others leave.
    [[nodiscard]] virtual bool isFlexible() const { return false; }

    /// What a reader of the screen calls the component; empty for one that says nothing.
    [[nodiscard]] virtual QString title() const { return {}; }

    /// What the slide asks whether the component is right; null for one that is always.
    [[nodiscard]] virtual std::shared_ptr<MandatorySupervised> mandatoryElement() const { return nullptr; }

signals:
    void titleDidChange();
};

namespace ComponentViews {

/// The view of one component: its content with the border above or below it, within its margins. A kind of
/// component derives from it, makes its content in its constructor and hands it to `setContentView`. It shows
/// what its item says with the values that the variables have: when one of them changes it is refreshed.
template <class Item>
class Base : public ComponentView {
public:
    using ItemType = Item;

    /// The queue must outlive the view.
    Base(Item item, QMargins standardMargins, MainQueue &mainQueue, QWidget *parent);

protected:
    [[nodiscard]] const Item &item() const noexcept { return item_; }
    void setContentView(QWidget *contentView) { layout_->insertWidget(contentPosition_, contentView, 1); }

    /// Reads the item again and shows it.
    virtual void refresh() {}

private:
    void followVariables();

    Item item_;
    VariableNames itemVariables_; // In the item's texts.
    QVBoxLayout *layout_;
    int contentPosition_ = 0;
    std::optional<VariablesRefresh> variablesRefresh_; // None for an item without variables.
};

/// The line that a border item asks for, as wide as its part of the view's width.
[[nodiscard]] QWidget *makeBorderView(const BorderItem &item, QWidget *parent);

/// The margins of an item; what it leaves open is as in `standard`.
[[nodiscard]] QMargins marginsOf(const MarginsItem &item, const QMargins &standard);

/// The variables on whose values a text with these variables depends, by the values that they have.
[[nodiscard]] VariableNames involvedItemVariables(const VariableNames &itemVariables,
                                                  const Variables &variables);

template <class Item>
Base<Item>::Base(Item item, QMargins standardMargins, MainQueue &mainQueue, QWidget *parent)
    : ComponentView(parent),
      item_(std::move(item)),
      itemVariables_(usedVariables(ComponentItem{item_})),
      layout_(new QVBoxLayout(this)) {
    constexpr int gapToBorder = 8;
    const auto &margins = item_.common._margins();
    layout_->setContentsMargins(margins ? marginsOf(*margins, standardMargins) : standardMargins);
    layout_->setSpacing(gapToBorder);
    if (const auto &border = item_.common._border()) {
        layout_->addWidget(makeBorderView(*border, this));
        contentPosition_ = border->_edge() == BorderItem::Edge::top ? 1 : 0;
    }
    if (!itemVariables_.empty()) {
        variablesRefresh_.emplace(mainQueue, [this] {
            followVariables();
            refresh();
            // Has the column give the view its new height before either is painted.
            layout_->activate();
        });
        followVariables();
    }
}

template <class Item>
void Base<Item>::followVariables() {
    variablesRefresh_->follow(
        [this](const Variables &variables) { return involvedItemVariables(itemVariables_, variables); });
}

} // namespace ComponentViews

} // namespace velmar
