#pragma once

#include <Configuration/ComponentItem.h>

#include <Foundation/UUID.h>

#include <QVBoxLayout>
#include <QWidget>

namespace velmar {

/// One component of a container on screen.
class ComponentView : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// True where the component takes the height that the others leave.
    [[nodiscard]] virtual bool isFlexible() const { return false; }
};

namespace ComponentViews {

/// The view of one component: its content with the border above or below it, within its margins. A kind of
/// component derives from it, makes its content in its constructor and hands it to `setContentView`.
template <class Item>
class Base : public ComponentView {
public:
    Base(Item item, QMargins standardMargins, QWidget *parent);

protected:
    [[nodiscard]] const Item &item() const noexcept { return item_; }
    void setContentView(QWidget *contentView) { layout_->insertWidget(contentPosition_, contentView, 1); }

private:
    UUID id_;
    Item item_;
    QVBoxLayout *layout_;
    int contentPosition_ = 0;
};

/// The line that a border item asks for, as wide as its part of the view's width.
[[nodiscard]] QWidget *makeBorderView(const BorderItem &item, QWidget *parent);

/// The margins of an item; what it leaves open is as in `standard`.
[[nodiscard]] QMargins marginsOf(const MarginsItem &item, const QMargins &standard);

template <class Item>
Base<Item>::Base(Item item, QMargins standardMargins, QWidget *parent)
    : ComponentView(parent), item_(std::move(item)), layout_(new QVBoxLayout(this)) {
    constexpr int gapToBorder = 8;
    const auto &margins = item_.common._margins();
    layout_->setContentsMargins(margins ? marginsOf(*margins, standardMargins) : standardMargins);
    layout_->setSpacing(gapToBorder);
    if (const auto &border = item_.common._border()) {
        layout_->addWidget(makeBorderView(*border, this));
        contentPosition_ = border->_edge() == BorderItem::Edge::top ? 1 : 0;
    }
}

} // namespace ComponentViews

} // namespace velmar
