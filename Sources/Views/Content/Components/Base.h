#pragma once

#include <Configuration/ComponentItem.h>
#include <Views/Content/MandatorySupervision.h>
#include <Views/Content/VariablesRefresh.h>

#include <QVBoxLayout>
#include <QWidget>

#include <memory>
#include <optional>

namespace velmar {

/// The view of a component of a container.
class ComponentView : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Returns true if the component fills the remaining height.
    [[nodiscard]] virtual bool isFlexible() const { return false; }

    /// Returns the accessible name of the component; empty if it has none.
    [[nodiscard]] virtual QString title() const { return {}; }

    /// Returns the element whose validity the slide checks, nullptr if the component is always valid.
    [[nodiscard]] virtual std::shared_ptr<MandatorySupervised> mandatoryElement() const { return nullptr; }

signals:
    void titleDidChange();
};

namespace ComponentViews {

/// Base class of the component views: the content, with a border above or below it, within margins. The
/// constructor of a derived class creates the content and passes it to `setContentView`. refresh() is called
/// when a variable of the item changes.
template <class Item>
class Base : public ComponentView {
public:
    using ItemType = Item;

    /// `mainQueue` must outlive the view.
    Base(Item item, QMargins standardMargins, MainQueue &mainQueue, QWidget *parent);

protected:
    [[nodiscard]] const Item &item() const noexcept { return item_; }
    void setContentView(QWidget *contentView) { layout_->insertWidget(contentPosition_, contentView, 1); }

    /// Shows the current values of the item.
    virtual void refresh() {}

private:
    void followVariables();

    Item item_;
    VariableNames itemVariables_; // Variables used in the item's texts.
    QVBoxLayout *layout_;
    int contentPosition_ = 0;
    std::optional<VariablesRefresh> variablesRefresh_; // nullopt if the item has no variables.
};

/// Creates the line of a border item, as wide as its share of the view's width. The parent owns it.
[[nodiscard]] QWidget *makeBorderView(const BorderItem &item, QWidget *parent);

/// Returns the margins of an item. Omitted margins are those of `standard`.
[[nodiscard]] QMargins marginsOf(const MarginsItem &item, const QMargins &standard);

/// Returns the variables that affect the texts with `itemVariables`, including variables referred to by the
/// current values.
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
            // Updates the height of the view in the column before both are painted.
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
