#pragma once

#include <QVariantAnimation>
#include <QWidget>

#include <functional>
#include <vector>

namespace velmar {

class ComponentView;

/// One change of a container's components in progress. What goes fades out in its place; then, in one
/// movement, its space closes while the space of what comes opens and that fades in. Meanwhile pictures of
/// the views stand in for them, so that nothing is laid out in a space too small for it. Main thread.
class ContainerViewManagementAnimator final : public QObject {
    Q_OBJECT

public:
    /// The parent view is the one whose column the views stand in; it owns the animator. Unless it is
    /// animated, everything is at its end at once.
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

    /// Puts a stand-in in the place of a view, which is hidden, and gives the view a size.
    StandIn *replace(ComponentView &view, QSize size);
    /// The heights that the views to insert will have in a column of this width.
    [[nodiscard]] std::vector<int> heightsToInsert(int width) const;
    void run(int milliseconds, QEasingCurve::Type curve, const std::function<void(double)> &step,
             std::function<void()> end);

    QWidget *parentView_;
    bool isAnimated_;
    QVariantAnimation animation_;
    std::vector<StandIn *> removed_; // As all stand-ins, owned by the parent view.
};

} // namespace velmar
