#include "SlidePictures.h"

#include <Actions/SlidesActionManager.h>
#include <Base/NavigationNotifications.h>
#include <Configuration/Configuration.h>
#include <Core/AppManager.h>
#include <Variables/ContentManager.h>
#include <Views/CustomViews/Pixels.h>

#include <QCoreApplication>
#include <QPixmap>

#include <cstdint>

namespace velmar {

namespace {

using OnScreen = WindowSection::OnScreen;
constexpr QSize screenSize(1280, 800);

} // namespace

SlidePictures::SlidePictures(QSize size, const DesktopAppearance &appearance)
    : services_(
          queue_, input_, [](const std::string & /*line*/) {}, ContentManager::shared()),
      view_(std::make_unique<VelmarViewController>(
          services_.bundle(), appearance,
          VelmarViewController::Application{.terminationManager = termination_,
                                            .reloadInterface = [](bool /*byResetingVariables*/) {},
                                            .center = center_})) {
    view_->setFixedSize(size);
    view_->show();
    settle();
}

QSize SlidePictures::sizeOfWindow() {
    const auto configuration = AppManager::shared()->configuration();
    const WindowSection &section = configuration->_window();
    switch (section._onScreen()) {
    case OnScreen::simple:
        return pixels(section._minimumSize());
    case OnScreen::blurredBackground:
        return pixels(section._maximumSize());
    case OnScreen::fullScreen:
        return screenSize;
    case OnScreen::menuBar:
        return pixels(section._menuBarSize());
    }
    return screenSize;
}

std::size_t SlidePictures::count() {
    const auto configuration = AppManager::shared()->configuration();
    return configuration->_window()._onScreen() == OnScreen::menuBar ? 1 : configuration->_slides().size();
}

QImage SlidePictures::picture(std::size_t index) {
    // The previous slide's hidden buttons and missing mandatory input must not affect this slide.
    center_.post(NavigationNotifications::evaluateButtonsHide);
    center_.post(NavigationNotifications::allMandatoryElementsInSlideAreValid);
    SlidesActionManager::shared()->navigateToIndex(static_cast<std::int64_t>(index));
    settle();
    return view_->grab().toImage();
}

void SlidePictures::settle() {
    do {
        QCoreApplication::processEvents();
    } while (queue_.runUntilEmpty() > 0);
}

} // namespace velmar
