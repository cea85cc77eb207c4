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

/// A scrollable column of components, which appear and disappear by their conditions. Main thread.
class ContainerViewController final : public QWidget, public ComponentsControllerProtocol {
    Q_OBJECT

public:
    /// Place of the container.
    enum class Kind {
        inSlide,        ///< One of several containers of a slide.
        inSoleSlide,    ///< The only container of its slide.
        inMenuBarSlide, ///< In the slide below the menu bar.
        inSidebar,      ///< Beside all slides.
    };

    /// `slideBorderColor` is the default of the container's border colour. `services` and `appearance` must
    /// outlive the controller.
    ContainerViewController(
        const ContainerItem &item, Kind kind, const std::optional<ColorItem> &slideBorderColor,
        const Services &services, const DesktopAppearance &appearance, QWidget *parent,
        const std::shared_ptr<ConditionEvaluator> &conditions = ConditionEvaluator::shared());
    ~ContainerViewController() override;

    [[nodiscard]] const std::shared_ptr<ContainerViewModel> &viewModel() const noexcept { return viewModel_; }

    [[nodiscard]] bool hasBorder() const noexcept { return borderColorItem_.has_value(); }

    /// Returns the views by the positions of their items; nullptr if the condition doesn't hold.
    [[nodiscard]] const std::vector<ComponentView *> &componentViews() const noexcept {
        return componentViews_;
    }

    /// Returns the title of the first component that has one, otherwise an empty text.
    [[nodiscard]] QString title() const;

    /// Called before the container is shown or hidden. Changes are animated only while it is shown.
    void viewWillAppear() { isOnShow_ = true; }
    void viewWillDisappear() { isOnShow_ = false; }

    /// Scrolls by a `Qt::Key`: Up, Down, PageUp, PageDown, Home or End. Returns false for any other key or if
    /// there is nothing to scroll.
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
    /// Creates a view as a child of the column, not yet in the layout.
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
    std::vector<QSpacerItem *> places_; // Empty items; each precedes the view of its position.
    ContainerViewManagementAnimator *viewManagementAnimator_ =
        nullptr;                                       // Animator of the last change; owned by column_.
    bool isOnShow_ = false;                            // Set by the slide; the widget stays visible longer.
    std::optional<VariablesRefresh> variablesRefresh_; // nullopt without conditions.
};

} // namespace velmar
