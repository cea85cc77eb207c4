#include <Views/VelmarViewController.h>

#include <Views/Content/Containers/ContainerViewController.h>
#include <Views/Content/Containers/SideContainerMandatorySupervisor.h>
#include <Views/Content/ContentView/ContentViewController.h>
#include <Views/Content/Slides/SlideViewController.h>
#include <Views/CustomViews/ColumnScrollArea.h>
#include <Views/CustomViews/Pixels.h>
#include <Views/Navigation/NavigationButton.h>
#include <Views/Navigation/NavigationViewController.h>

#include <Base/Services.h>
#include <Interaction/AlertPresenter.h>
#include <Termination/TerminationNotifications.h>

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <QVariantAnimation>

#include <algorithm>
#include <utility>

namespace velmar {

namespace {

/// Accessible interface of the root view: a group with the name of the first container of the current slide.
/// It is busy while an animation of the views is running.
class AccessibleContent final : public QAccessibleWidget {
public:
    explicit AccessibleContent(QWidget *widget) : QAccessibleWidget(widget, QAccessible::Grouping) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const auto *content = widget()->findChild<ContentViewController *>();
        const auto *slide = content == nullptr ? nullptr : content->currentSlide();
        const auto *container = slide == nullptr ? nullptr : slide->findChild<ColumnScrollArea *>();
        return kind == QAccessible::Name && container != nullptr ? container->accessibleName()
                                                                 : QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QAccessible::State state() const override {
        // Ignores animations of the style, which have other classes and may never end.
        QAccessible::State state = QAccessibleWidget::state();
        const auto animations = widget()->findChildren<QVariantAnimation *>();
        state.busy = std::ranges::any_of(animations, [](const QVariantAnimation *animation) {
            return animation->state() == QVariantAnimation::Running;
        });
        return state;
    }
};

QAccessibleInterface *accessibleContent(const QString &className, QObject *object) {
    return className == QLatin1String(VelmarViewController::staticMetaObject.className())
               ? new AccessibleContent(static_cast<QWidget *>(object))
               : nullptr;
}

} // namespace

VelmarViewController::VelmarViewController(const Services &services, const DesktopAppearance &appearance,
                                           Application application, QWidget *parent)
    : QWidget(parent),
      services_(services),
      appearance_(appearance),
      application_(std::move(application)),
      contentViewModel_(std::make_shared<ContentViewModel>(
          services_.mainQueue, application_.terminationManager, application_.center)),
      row_(new QHBoxLayout(this)),
      column_(new QVBoxLayout) {
    row_->setContentsMargins(0, 0, 0, 0);
    row_->setSpacing(0);
    column_->setSpacing(0);
    row_->addLayout(column_, 1);
    contentViewModel_->setTerminationDelegate(this);
    contentViewModel_->setupNotifications();
    setupQuitAlerts();
    buildSideContainer();
    buildNavigation();
    contentViewController_ = new ContentViewController(contentViewModel_, services_, appearance_, this);
    column_->insertWidget(0, contentViewController_, 1);
    QAccessible::installFactory(&accessibleContent); // Repeated calls have no effect.
    setFocusPolicy(Qt::ClickFocus);                  // No Tab focus: the view shows no ring.
    connect(contentViewController_, &ContentViewController::willLeave, this,
            &VelmarViewController::contentWillLeave);
    orderTabStops();
    contentDidAppear();
}

VelmarViewController::~VelmarViewController() {
    contentViewModel_->setTerminationDelegate(nullptr);
}

void VelmarViewController::setupQuitAlerts() {
    using namespace TerminationNotifications;
    const auto alertOn = [this](std::string_view notification, auto text) {
        observers_.push_back(application_.center.addObserver(std::string(notification), [this, text] {
            services_.alerts.present({.style = Alert::Style::warning,
                                      .messageText = text(*_navigation.wrappedValue()),
                                      .informativeText = {},
                                      .buttons = {}},
                                     [](std::size_t) {});
        }));
    };
    alertOn(userTriesToQuitWhenNotAllMonitorsAreInstalled, [](const NavigationSection &navigation) {
        const auto text = navigation._installationIncompleteQuitText();
        //: Text displayed when the user tries to quit the app although not all apps are installed
        //% "Some apps are not installed yet. You can quit once all of them are."
        return text ? *text
                    : qtTrId("general.alerts.wait-for-complete-installation-before-quitting.title")
                          .toStdString();
    });
    alertOn(userTriesToQuitWhenNotAllMonitoredFilesArePresent, [](const NavigationSection &navigation) {
        const auto text = navigation._mandatoryFilesMissingQuitText();
        //: Text displayed when the user tries to quit the app although not mandatory files are present on
        //: device
        //% "Some required files are not on this computer yet. You can quit once all of them are."
        return text ? *text
                    : qtTrId("general.alerts.wait-for-mandatory-files-before-quitting.title").toStdString();
    });
}

void VelmarViewController::buildSideContainer() {
    delete sideContainerViewController_;
    sideContainerViewController_ = nullptr;
    sideContainerSupervisor_.reset();
    const auto section = _sideContainer.wrappedValue();
    if (!*section) {
        return;
    }
    sideContainerViewController_ =
        new ContainerViewController((*section)->_container(), ContainerViewController::Kind::inSidebar,
                                    std::nullopt, services_, appearance_, this);
    sideContainerSupervisor_ =
        SideContainerMandatorySupervisor::make(sideContainerViewController_->viewModel());
    sideContainerViewController_->viewWillAppear();
    sideContainerViewController_->setFixedWidth(pixels((*section)->_width()));
    row_->insertWidget(0, sideContainerViewController_);
}

void VelmarViewController::buildNavigation() {
    delete navigationViewController_;
    navigationViewController_ =
        new NavigationViewController(*_navigation.wrappedValue(), contentViewModel_, appearance_, this);
    column_->addWidget(navigationViewController_);
}

void VelmarViewController::contentDidAppear() {
    contentViewModel_->setSelectedIndex(contentViewModel_->selectedSlideIndex(), false);
}

void VelmarViewController::contentWillLeave(const SlideViewController &slide) {
    orderTabStops();
    const QWidget *focused = window()->focusWidget();
    if (focused == nullptr || slide.isAncestorOf(focused)) {
        focusNavigation();
    }
}

void VelmarViewController::orderTabStops() {
    // Widgets created later are appended to the focus chain.
    QWidget *last = window()->previousInFocusChain();
    if (last == &navigationViewController_->nextButton()) {
        return;
    }
    // setTabOrder() ignores widgets without a focus policy.
    const Qt::FocusPolicy policy = last->focusPolicy();
    last->setFocusPolicy(Qt::TabFocus);
    setTabOrder(last, &navigationViewController_->previousButton());
    last->setFocusPolicy(policy);
    setTabOrder(&navigationViewController_->previousButton(), &navigationViewController_->nextButton());
}

void VelmarViewController::focusNavigation() {
    for (NavigationButton *button :
         {&navigationViewController_->nextButton(), &navigationViewController_->previousButton()}) {
        if (!navigationViewController_->isHidden() && !button->isConcealed()) {
            button->setFocus();
            return;
        }
    }
    setFocus();
}

void VelmarViewController::reload(bool byResetingVariables) {
    contentViewModel_->reloadSlidesIfCountChanged(
        [this, byResetingVariables] { application_.reloadInterface(byResetingVariables); });
    buildSideContainer();
    buildNavigation();
    contentViewController_->rebuild();
    orderTabStops();
    contentDidAppear();
    focusNavigation();
}

bool VelmarViewController::isSideContainerValid() const {
    return sideContainerSupervisor_ == nullptr || sideContainerSupervisor_->isValid();
}

void VelmarViewController::showSideContainerWarnings() {
    if (sideContainerSupervisor_ != nullptr) {
        sideContainerSupervisor_->showWarnings();
    }
}

void VelmarViewController::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    if (!event->spontaneous() && std::exchange(shownIn_, window()) != window()) {
        focusNavigation();
    }
}

void VelmarViewController::keyPressEvent(QKeyEvent *event) {
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool isFresh = isPlain && !event->isAutoRepeat();
    const int onward = isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
    const int back = isRightToLeft() ? Qt::Key_Right : Qt::Key_Left;
    const int key = event->key();
    if (isFresh && (key == onward || key == Qt::Key_Return || key == Qt::Key_Enter)) {
        navigationViewController_->pressNext();
    } else if (isFresh && key == back) {
        navigationViewController_->pressPrevious();
    } else if (SlideViewController *slide = contentViewController_->currentSlide();
               !isPlain || slide == nullptr || !slide->scroll(key)) {
        QWidget::keyPressEvent(event);
    }
}

} // namespace velmar
