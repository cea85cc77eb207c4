#pragma once

#include <Configuration/SlideItem.h>
#include <Views/Content/Containers/ContainerViewController.h>

#include <QWidget>

#include <memory>
#include <vector>

namespace velmar {

class NotificationCenter;
class SlideViewModel;

/// The view of a slide: its containers side by side. Main thread.
class SlideViewController final : public QWidget {
    Q_OBJECT

public:
    enum class Kind {
        standard,
        inMenuBar, ///< No top inset.
    };

    /// Posts the validity of the slide to `center`. `center`, `services` and `appearance` must outlive the
    /// controller.
    SlideViewController(const SlideItem &slide, Kind kind, NotificationCenter &center,
                        const Services &services, const DesktopAppearance &appearance, QWidget *parent);
    ~SlideViewController() override;

    [[nodiscard]] const std::shared_ptr<SlideViewModel> &viewModel() const noexcept { return viewModel_; }

    void viewWillAppear();
    void viewWillDisappear();

    /// Returns the accessible name of the slide: the title of its first component that has one.
    [[nodiscard]] QString title() const;

    /// Scrolls the first scrollable container by a `Qt::Key`. Returns false if no container scrolls by that
    /// key.
    bool scroll(int key);

signals:
    void titleDidChange();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    Kind kind_;
    std::shared_ptr<SlideViewModel> viewModel_;
    SlideItem::ContainersComposition composition_;
    std::vector<ContainerViewController *> containerViewControllers_; // In item order.
};

} // namespace velmar
