#pragma once

#include <QVariantAnimation>
#include <QWidget>

#include <functional>
#include <vector>

namespace velmar {

class ComponentView;

/// Animates one change of a container's components. Removed views fade out; then their space closes while the
/// space of the inserted views opens and these fade in. Pictures replace the views during the animation, so
/// that no view is laid out in too small a space. A picture shows the visible part only, so its size is
/// bounded by the viewport. A text that changes meanwhile is updated at the end. Main thread.
class ContainerViewManagementAnimator final : public QObject {
    Q_OBJECT

public:
    /// `parentView` is the column that contains the views; its parent is the viewport that scrolls it. It
    /// owns the animator. If `isAnimated` is false, the change is immediate.
    ContainerViewManagementAnimator(QWidget *parentView, bool isAnimated);
    ~ContainerViewManagementAnimator() override;

    /// Visible views in the layout.
    std::vector<ComponentView *> viewsToRemove;
    /// Hidden views, in the layout when `animateInsertion` is called.
    std::vector<ComponentView *> viewsToInsert;

    /// Fades out the views to remove, then hides them and takes them out of the layout. The completion is not
    /// called if the animator is destroyed first.
    void animateRemoval(std::function<void()> completion);

    /// Closes and opens the spaces, then shows the views to insert. The completion is not called if the
    /// animator is destroyed first.
    void animateInsertion(std::function<void()> completion);

private:
    class StandIn;

    /// Replaces a view in the layout by a stand-in and resizes the view.
    StandIn *replace(ComponentView &view, QSize size);
    /// Returns the visible part of the column, in its coordinates.
    [[nodiscard]] QRect visiblePart() const;
    /// Returns the final heights of the views to insert in a column of this width.
    [[nodiscard]] std::vector<int> heightsToInsert(int width) const;
    void run(int milliseconds, QEasingCurve::Type curve, const std::function<void(double)> &step,
             std::function<void()> end);

    QWidget *parentView_;
    bool isAnimated_;
    QVariantAnimation animation_{this};
    std::vector<StandIn *> removed_; // All stand-ins are owned by the parent view.
};

} // namespace velmar
