#pragma once

#include <QVariantAnimation>
#include <QWidget>

#include <functional>
#include <vector>

namespace velmar {

class ComponentView;

/// One change of a container's components in progress. What goes fades out in its place; then, in one
/// movement, its space closes while the space of what comes opens and that fades in. Meanwhile pictures of
/// the views stand in for them, so that nothing is laid out in a space too small for it: of what the viewport
/// shows, so that a text of any length costs no more than a screen. A text whose variable changes meanwhile
/// keeps its picture, and its height, to the end, and only then takes its new ones at once. Main thread.
class ContainerViewManagementAnimator final : public QObject {
    Q_OBJECT

public:
    /// The parent view is the column that the views stand in, itself in the viewport that scrolls it; it owns
    /// the animator. Unless it is animated, everything is at its end at once.
    ContainerViewManagementAnimator(QWidget *parentView, bool isAnimated);
    ~ContainerViewManagementAnimator() override;

    /// In the layout, on show.
    std::vector<ComponentView *> viewsToRemove;
    /// Hidden; in the layout when `animateInsertion` is called.
    std::vector<ComponentView *> viewsToInsert;

    /// At the end the views to remove are hidden and out of the layout. An animator that is destroyed before
    /// doesn't call the completion, here and below.
    void animateRemoval(std::function<void()> completion);

    /// At the end the views to insert are on show.
    void animateInsertion(std::function<void()> completion);

private:
    class StandIn;

    /// Puts a stand-in in the place of a view, which leaves the layout and is given a size.
    StandIn *replace(ComponentView &view, QSize size);
    /// The part of the column that the user sees.
    [[nodiscard]] QRect visiblePart() const;
    /// The heights that the views to insert will have in a column of this width.
    [[nodiscard]] std::vector<int> heightsToInsert(int width) const;
    void run(int milliseconds, QEasingCurve::Type curve, const std::function<void(double)> &step,
             std::function<void()> end);

    QWidget *parentView_;
    bool isAnimated_;
    QVariantAnimation animation_{this};
    std::vector<StandIn *> removed_; // As all stand-ins, owned by the parent view.
};

} // namespace velmar
