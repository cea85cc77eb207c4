#include <Views/Content/ContentView/ContentViewController.h>

#include <Desktop/DesktopAppearance.h>
#include <Views/Content/Slides/SlideViewController.h>

#include <fmt/core.h>
#include <logger/Logger.h>

#include <cmath>

namespace velmar {

namespace {
constexpr int transitionDuration = 320; // Milliseconds.
}

ContentViewController::ContentViewController(std::shared_ptr<ContentViewModel> viewModel,
                                             const Services &services, const DesktopAppearance &appearance,
                                             QWidget *parent)
    : QWidget(parent), viewModel_(std::move(viewModel)), services_(services), appearance_(appearance) {
    viewModel_->setController(this);
    animation_.setStartValue(0.0);
    animation_.setEndValue(1.0);
    animation_.setDuration(transitionDuration);
    animation_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&animation_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &progress) { place(progress.toDouble()); });
    connect(&animation_, &QVariantAnimation::finished, this, &ContentViewController::finishTransition);
    rebuild();
}

ContentViewController::~ContentViewController() {
    viewModel_->setController(nullptr);
}

void ContentViewController::rebuild() {
    animation_.stop();
    for (const auto &[index, view] : slides_) {
        view->viewWillDisappear();
        delete view;
    }
    slides_.clear();
    currentSlideIndex_ = viewModel_->selectedSlideIndex();
    previousSlideIndex_ = currentSlideIndex_;
    SlideViewController *view = slide(currentSlideIndex_);
    if (view == nullptr) {
        Logger::error("No first slide view controller to display");
        return;
    }
    view->setGeometry(rect());
    view->viewWillAppear();
    view->show();
}

SlideViewController *ContentViewController::slide(int index) {
    if (SlideViewController *known = madeSlide(index)) {
        return known;
    }
    const auto items = viewModel_->slides();
    if (index < 0 || static_cast<std::size_t>(index) >= items->size()) {
        return nullptr;
    }
    using Kind = SlideViewController::Kind;
    auto *view = new SlideViewController((*items)[static_cast<std::size_t>(index)],
                                         viewModel_->isMenuBarMode() ? Kind::inMenuBar : Kind::standard,
                                         viewModel_->center(), services_, appearance_, this);
    view->hide();
    slides_.emplace(index, view);
    return view;
}

SlideViewController *ContentViewController::madeSlide(int index) const {
    const auto made = slides_.find(index);
    return made == slides_.end() ? nullptr : made->second;
}

SlideViewController *ContentViewController::currentSlide() const {
    return madeSlide(currentSlideIndex_);
}

std::shared_ptr<SlideViewModel> ContentViewController::currentSlideViewModel() const {
    const SlideViewController *current = currentSlide();
    return current == nullptr ? nullptr : current->viewModel();
}

void ContentViewController::transition(int /*from*/, int to) {
    if (animation_.state() == QAbstractAnimation::Running) {
        animation_.stop();
        finishTransition();
    }
    SlideViewController *next = slide(to);
    if (to == currentSlideIndex_ || next == nullptr) {
        return;
    }
    previousSlideIndex_ = currentSlideIndex_;
    currentSlideIndex_ = to;
    if (SlideViewController *previous = slide(previousSlideIndex_)) {
        previous->viewWillDisappear();
        previous->setAttribute(Qt::WA_TransparentForMouseEvents); // The leaving slide takes no clicks.
        emit willLeave(*previous);
    }
    next->resize(size());
    next->viewWillAppear();
    next->setAttribute(Qt::WA_TransparentForMouseEvents, false);
    place(0);
    next->show();
    next->raise();
    if (appearance_.isAnimated()) {
        animation_.start();
    } else {
        finishTransition();
    }
}

void ContentViewController::place(double progress) {
    const bool isForward = (previousSlideIndex_ < currentSlideIndex_) != isRightToLeft();
    const int direction = isForward ? 1 : -1;
    const int shift = static_cast<int>(std::lround(progress * width()));
    if (SlideViewController *previous = madeSlide(previousSlideIndex_)) {
        previous->move(-direction * shift, 0);
    }
    if (SlideViewController *current = currentSlide()) {
        current->move(direction * (width() - shift), 0);
    }
}

void ContentViewController::finishTransition() {
    place(1);
    if (SlideViewController *previous = madeSlide(previousSlideIndex_)) {
        previous->hide();
    }
    Logger::debug("Successfully operated the slide transition",
                  fmt::format("[{} -> {}]", previousSlideIndex_, currentSlideIndex_));
}

void ContentViewController::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    if (animation_.state() == QAbstractAnimation::Running) {
        animation_.stop();
        finishTransition();
    }
    if (SlideViewController *current = currentSlide()) {
        current->setGeometry(rect());
    }
}

} // namespace velmar
