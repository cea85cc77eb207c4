#pragma once

#include <Configuration/ContainerItem.h>
#include <Views/Content/Containers/ComponentsViewModel.h>
#include <Views/Content/Containers/ContainerKeyboardFocus.h>
#include <Views/Content/VariablesRefresh.h>

#include <QColor>
#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

class QSpacerItem;
class QVBoxLayout;

namespace velmar {

class ColumnScrollArea;
class ComponentView;
class ContainerViewManagementAnimator;
class ContainerViewModel;
class DesktopAppearance;
struct Services;

/// A column of components, of which those with conditions come and go; one that is too high scrolls. Main
/// thread.
class ContainerViewController final : public QWidget, public ComponentsControllerProtocol {
    Q_OBJECT

public:
    /// Where the container stands.
    enum class Kind {
        inSlide,        ///< Beside others.
        inSoleSlide,    ///< Alone in its slide.
        inMenuBarSlide, ///< In the slide below the menu bar.
        inSidebar,      ///< Beside all slides.
    };

    /// `slideBorderColor` is the border's colour unless the container has one of its own. The appearance must
    /// outlive the controller.
    ContainerViewController(
        const ContainerItem &item, Kind kind, const std::optional<ColorItem> &slideBorderColor,
        const Services &services, const DesktopAppearance &appearance, QWidget *parent,
        const std::shared_ptr<ConditionEvaluator> &conditions = ConditionEvaluator::shared());
    ~ContainerViewController() override;

    [[nodiscard]] const std::shared_ptr<ContainerViewModel> &viewModel() const noexcept { return viewModel_; }

    [[nodiscard]] bool hasBorder() const noexcept { return borderColorItem_.has_value(); }

    /// The views by the positions of their items; null where the condition doesn't hold.
    [[nodiscard]] const std::vector<ComponentView *> &componentViews() const noexcept {
        return componentViews_;
    }

    /// That of the first component that has one; empty where none has.
    [[nodiscard]] QString title() const;

    /// Components come and go gradually only in a container that the user sees.
    void viewWillAppear() { isOnShow_ = true; }
    void viewWillDisappear() { isOnShow_ = false; }

    /// Scrolls by a `Qt::Key`: Up, Down, PageUp, PageDown, Home or End. False for any other, and where there
    /// is nothing to scroll.
    bool scroll(int key);

    void takeKeyboardFocusAway() override;
    void prepare(const ComponentsChange &change) override;
    void giveKeyboardFocusBack() override;
    void animateRemoval(std::function<void()> completion) override;
    void rebuildLayout() override;
    void animateInsertion(std::function<void()> completion) override;

signals:
    void titleDidChange();

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// A new view, in the column but not yet in its place.
    ComponentView *makeView(std::size_t position);
    void putInPlace(std::size_t position);
    void updateTitle();
    void updateBorderColor();

    Kind kind_;
    const Services &services_;
    const DesktopAppearance &appearance_;
    std::shared_ptr<ContainerViewModel> viewModel_;
    std::optional<ComponentsViewModel> components_;
    std::optional<ColorItem> borderColorItem_;
    std::optional<QColor> borderColor_;
    QWidget *column_;
    QVBoxLayout *layout_;
    ColumnScrollArea *scrollArea_;
    ContainerKeyboardFocus keyboardFocus_;
    std::vector<ComponentView *> componentViews_;
    std::vector<QSpacerItem *> places_; // Empty; the view of a position stands right behind its place.
    ContainerViewManagementAnimator *viewManagementAnimator_ = nullptr; // Of the last change; the column's.
    bool isOnShow_ = false; // By its slide; the widget itself is visible a while longer.
    std::optional<VariablesRefresh> variablesRefresh_; // None without conditions.
};

} // namespace velmar
