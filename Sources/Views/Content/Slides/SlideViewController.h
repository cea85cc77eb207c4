#pragma once

#include <Configuration/SlideItem.h>
#include <Views/Content/Containers/ContainerViewController.h>

#include <QWidget>

#include <memory>
#include <vector>

namespace velmar {

class NotificationCenter;
class SlideViewModel;

/// A slide on screen: its containers side by side. Main thread.
class SlideViewController final : public QWidget {
    Q_OBJECT

public:
    enum class Kind {
        standard,
        inMenuBar, ///< Without the inset at the top.
    };

    /// The slide's validity is told to the centre, which must outlive the controller, as must the appearance.
    SlideViewController(const SlideItem &slide, Kind kind, NotificationCenter &center,
                        const Services &services, const DesktopAppearance &appearance, QWidget *parent);
    ~SlideViewController() override;

    [[nodiscard]] const std::shared_ptr<SlideViewModel> &viewModel() const noexcept { return viewModel_; }

    void viewWillAppear();
    void viewWillDisappear();

    /// What readers of the screen call the slide: the title of its first component that has one.
    [[nodiscard]] QString title() const;

    /// Scrolls the first container that can be by a `Qt::Key`; false where none can, or not by that key.
    bool scroll(int key);

signals:
    void titleDidChange();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    Kind kind_;
    std::shared_ptr<SlideViewModel> viewModel_;
    SlideItem::ContainersComposition composition_;
    std::vector<ContainerViewController *> containerViewControllers_; // In the order of the items.
};

} // namespace velmar
