#include <Views/Content/Slides/SlideViewController.h>

#include <Views/Content/Containers/ContainerViewModel.h>
#include <Views/Content/Slides/ContainerSpans.h>
#include <Views/Content/Slides/SlideViewModel.h>

#include <algorithm>

namespace velmar {

namespace {

// Points. Bordered containers align with the navigation buttons.
constexpr int standardTopInset = 8;
constexpr int borderedInset = 16;

ContainerViewController::Kind containerKind(SlideViewController::Kind kind, std::size_t count) {
    if (kind == SlideViewController::Kind::inMenuBar) {
        return ContainerViewController::Kind::inMenuBarSlide;
    }
    return count == 1 ? ContainerViewController::Kind::inSoleSlide : ContainerViewController::Kind::inSlide;
}

} // namespace

SlideViewController::SlideViewController(const SlideItem &slide, Kind kind, NotificationCenter &center,
                                         const Services &services, const DesktopAppearance &appearance,
                                         QWidget *parent)
    : QWidget(parent),
      kind_(kind),
      viewModel_(std::make_shared<SlideViewModel>(center)),
      composition_(slide.containersComposition()) {
    const auto &containers = slide._containers();
    for (const ContainerItem &item : containers) {
        auto *container =
            new ContainerViewController(item, containerKind(kind, containers.size()),
                                        slide._containersBorderColor(), services, appearance, this);
        container->viewModel()->setMandatorySupervisor(viewModel_);
        connect(container, &ContainerViewController::titleDidChange, this,
                &SlideViewController::titleDidChange);
        containerViewControllers_.push_back(container);
    }
}

SlideViewController::~SlideViewController() = default;

void SlideViewController::viewWillAppear() {
    viewModel_->willAppear();
    std::ranges::for_each(containerViewControllers_, &ContainerViewController::viewWillAppear);
}

void SlideViewController::viewWillDisappear() {
    viewModel_->willDisappear();
    std::ranges::for_each(containerViewControllers_, &ContainerViewController::viewWillDisappear);
}

QString SlideViewController::title() const {
    for (const ContainerViewController *container : containerViewControllers_) {
        if (const QString title = container->title(); !title.isEmpty()) {
            return title;
        }
    }
    return {};
}

bool SlideViewController::scroll(int key) {
    return std::ranges::any_of(containerViewControllers_,
                               [key](auto *container) { return container->scroll(key); });
}

void SlideViewController::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    QRect room = rect().adjusted(0, kind_ == Kind::standard ? standardTopInset : 0, 0, 0);
    if (std::ranges::any_of(containerViewControllers_, &ContainerViewController::hasBorder)) {
        room.adjust(borderedInset, borderedInset - standardTopInset, -borderedInset, -borderedInset);
    }
    const auto spans =
        containerSpans(composition_, containerViewControllers_.size(), std::max(0, room.width()));
    for (std::size_t index = 0; index < spans.size(); ++index) {
        const auto [start, extent] = spans[index];
        const int x = isRightToLeft() ? room.width() - start - extent : start;
        containerViewControllers_[index]->setGeometry(room.x() + x, room.y(), extent,
                                                      std::max(0, room.height()));
    }
}

} // namespace velmar
