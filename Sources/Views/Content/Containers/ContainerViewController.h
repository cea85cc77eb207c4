#pragma once

#include <Configuration/ContainerItem.h>

#include <QColor>
#include <QWidget>

#include <memory>
#include <vector>

class QScrollArea;

namespace velmar {

class ComponentView;
class ContainerViewModel;

/// A column of components; one that is too high scrolls. Main thread.
class ContainerViewController final : public QWidget {
    Q_OBJECT

public:
    /// Where the container stands.
    enum class Kind {
        inSlide,        ///< Beside others.
        inSoleSlide,    ///< Alone in its slide.
        inMenuBarSlide, ///< In the slide below the menu bar.
        inSidebar,      ///< Beside all slides.
    };

    /// `slideBorderColor` is the border's colour unless the container has one of its own.
    ContainerViewController(const ContainerItem &item, Kind kind,
                            const std::optional<ColorItem> &slideBorderColor, QWidget *parent);
    ~ContainerViewController() override;

    [[nodiscard]] const std::shared_ptr<ContainerViewModel> &viewModel() const noexcept { return viewModel_; }

    [[nodiscard]] bool hasBorder() const noexcept { return borderColorItem_.has_value(); }

    /// Scrolls by a `Qt::Key`: Up, Down, PageUp, PageDown, Home or End. False for any other, and where there
    /// is nothing to scroll.
    bool scroll(int key);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void updateBorderColor();

    Kind kind_;
    std::shared_ptr<ContainerViewModel> viewModel_;
    std::optional<ColorItem> borderColorItem_;
    std::optional<QColor> borderColor_;
    QScrollArea *scrollArea_;
    std::vector<ComponentView *> componentViews_; // In the order of the items.
};

} // namespace velmar
