#include <Views/Content/Containers/ContainerViewManagementAnimator.h>

#include <Views/Content/Components/Base.h>

#include <QLayout>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmar {

namespace {

// Milliseconds.
constexpr int fadeDuration = 120;
constexpr int movementDuration = 200;

// Share of the movement after which the inserted views have enough space to be visible.
constexpr double fadeInBegin = 0.3;

} // namespace

/// A picture of a part of a view, as high as the space of the view.
class ContainerViewManagementAnimator::StandIn final : public QWidget {
public:
    StandIn(ComponentView &view, int height, QWidget *parent)
        : QWidget(parent), view_(view), height_(height) {
        setFixedHeight(height);
    }

    [[nodiscard]] ComponentView &view() const { return view_; }
    [[nodiscard]] int fullHeight() const { return height_; }

    /// Renders the view, without its background, where it intersects `part`, given in coordinates of the
    /// column.
    void takePicture(const QRect &part) {
        part_ = part.translated(-pos()).intersected(view_.rect());
        if (part_.isEmpty()) {
            return;
        }
        picture_ = QPixmap(part_.size() * devicePixelRatioF());
        picture_.setDevicePixelRatio(devicePixelRatioF());
        picture_.fill(Qt::transparent);
        view_.render(&picture_, QPoint(), QRegion(part_), QWidget::DrawChildren);
    }

    /// Sets the opacity, from 0 to 1.
    void setOpacity(double opacity) {
        opacity_ = opacity;
        update();
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPainter painter(this);
        painter.setOpacity(opacity_);
        painter.drawPixmap(part_.topLeft(), picture_);
    }

private:
    ComponentView &view_;
    QPixmap picture_;
    QRect part_; // Part of the view shown in the picture.
    int height_;
    double opacity_ = 1;
};

ContainerViewManagementAnimator::ContainerViewManagementAnimator(QWidget *parentView, bool isAnimated)
    : QObject(parentView), parentView_(parentView), isAnimated_(isAnimated) {
    animation_.setStartValue(0.0);
    animation_.setEndValue(1.0);
}

ContainerViewManagementAnimator::~ContainerViewManagementAnimator() = default;

void ContainerViewManagementAnimator::animateRemoval(std::function<void()> completion) {
    if (!isAnimated_) {
        for (ComponentView *view : viewsToRemove) {
            view->hide();
            parentView_->layout()->removeWidget(view);
        }
        completion();
        return;
    }
    for (ComponentView *view : viewsToRemove) {
        removed_.push_back(replace(*view, view->size()));
        removed_.back()->takePicture(visiblePart());
        view->hide();
    }
    const auto step = [this](double progress) {
        for (StandIn *standIn : removed_) {
            standIn->setOpacity(1 - progress);
        }
    };
    run(fadeDuration, QEasingCurve::OutQuad, step, std::move(completion));
}

void ContainerViewManagementAnimator::animateInsertion(std::function<void()> completion) {
    if (!isAnimated_) {
        for (ComponentView *view : viewsToInsert) {
            view->show();
        }
        completion();
        return;
    }
    std::vector<StandIn *> inserted;
    const QMargins margins = parentView_->layout()->contentsMargins();
    const int width = std::max(1, parentView_->width() - margins.left() - margins.right());
    const std::vector<int> heights = heightsToInsert(width);
    for (std::size_t index = 0; index < heights.size(); ++index) {
        inserted.push_back(replace(*viewsToInsert[index], {width, heights[index]}));
    }
    const auto step = [this, inserted](double progress) {
        // Rounds the ends, not the heights, so that views below move in one direction only.
        double end = 0;
        const auto give = [&end](StandIn &standIn, double share) {
            const auto start = std::lround(end);
            end += share * standIn.fullHeight();
            standIn.setFixedHeight(static_cast<int>(std::lround(end) - start));
        };
        for (StandIn *standIn : removed_) {
            give(*standIn, 1 - progress);
        }
        for (StandIn *standIn : inserted) {
            give(*standIn, progress);
            standIn->setOpacity(std::max(0.0, (progress - fadeInBegin) / (1 - fadeInBegin)));
        }
    };
    step(0);
    parentView_->layout()->activate(); // Moves the stand-ins to their positions.
    for (StandIn *standIn : inserted) {
        QRect part = visiblePart();
        part.moveTop(std::max(part.top(), standIn->y())); // Closing space above may move it up.
        standIn->takePicture(part);
    }
    run(movementDuration, QEasingCurve::InOutCubic, step, [this, inserted, end = std::move(completion)] {
        for (StandIn *standIn : inserted) {
            delete parentView_->layout()->replaceWidget(standIn, &standIn->view());
            standIn->view().show();
            delete standIn;
        }
        for (const StandIn *standIn : removed_) {
            delete standIn;
        }
        end();
    });
}

std::vector<int> ContainerViewManagementAnimator::heightsToInsert(int width) const {
    int needed = parentView_->layout()->totalHeightForWidth(parentView_->width());
    for (const StandIn *standIn : removed_) {
        needed -= standIn->fullHeight();
    }
    std::vector<int> heights;
    for (const ComponentView *view : viewsToInsert) {
        const int height = view->layout()->totalHeightForWidth(width);
        heights.push_back(height < 0 ? view->sizeHint().height() : height);
        needed += heights.back();
    }
    // Flexible views share the remaining height.
    const auto views = parentView_->findChildren<ComponentView *>(Qt::FindDirectChildrenOnly);
    const auto flexible = std::ranges::count_if(views, [this](const ComponentView *view) {
        return view->isFlexible() && parentView_->layout()->indexOf(view) >= 0;
    });
    const int left = std::max(0, visiblePart().height() - needed);
    for (std::size_t index = 0; index < heights.size(); ++index) {
        if (viewsToInsert[index]->isFlexible()) {
            heights[index] += left / static_cast<int>(flexible);
        }
    }
    return heights;
}

ContainerViewManagementAnimator::StandIn *ContainerViewManagementAnimator::replace(ComponentView &view,
                                                                                   QSize size) {
    auto *standIn = new StandIn(view, size.height(), parentView_);
    // Outside the layout, the view keeps the size needed for its picture.
    delete parentView_->layout()->replaceWidget(&view, standIn);
    view.resize(size);
    standIn->setGeometry(view.geometry());
    standIn->show();
    return standIn;
}

QRect ContainerViewManagementAnimator::visiblePart() const {
    return parentView_->parentWidget()->rect().translated(-parentView_->pos());
}

void ContainerViewManagementAnimator::run(int milliseconds, QEasingCurve::Type curve,
                                          const std::function<void(double)> &step,
                                          std::function<void()> end) {
    animation_.disconnect(this);
    connect(&animation_, &QVariantAnimation::valueChanged, this,
            [step](const QVariant &progress) { step(progress.toDouble()); });
    connect(&animation_, &QVariantAnimation::finished, this, std::move(end));
    animation_.setEasingCurve(curve);
    animation_.setDuration(milliseconds);
    animation_.start();
}

} // namespace velmar
