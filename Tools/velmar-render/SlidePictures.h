#pragma once

#include <Dispatch/MainThreadQueue.h>
#include <Foundation/NotificationCenter.h>
#include <TerminalServices.h>
#include <Termination/AppTerminationManager.h>
#include <Views/VelmarViewController.h>

#include <QImage>
#include <QSize>

#include <cstddef>
#include <memory>
#include <sstream>

namespace velmar {

class DesktopAppearance;

/// Renders the window's content slide by slide, with the application's views, fonts, theme and texts. Shows
/// the configuration of the shared AppManager. Requires a QApplication with the theme installed. Runs no
/// action sets and asks for no input. Main thread.
class SlidePictures {
public:
    /// The appearance must outlive this object.
    SlidePictures(QSize size, const DesktopAppearance &appearance);

    /// Returns the initial size of the window in points; 1280x800 for a full-screen window.
    [[nodiscard]] static QSize sizeOfWindow();

    /// Returns the number of slides in the configuration's mode; 1 for "MenuBar", whose only slide is below
    /// the menu bar.
    [[nodiscard]] static std::size_t count();

    /// Returns the slide at an index below `count()`, as reached by the navigation buttons. Mandatory
    /// elements don't prevent the navigation. Null if there is not enough memory for the picture.
    [[nodiscard]] QImage picture(std::size_t index);

private:
    class NoTermination final : public AppTerminationManagerProtocol {
        void tryToQuitApplication() override {}
    };

    void settle();

    MainThreadQueue queue_;
    NotificationCenter center_;
    NoTermination termination_;
    std::istringstream input_; // Empty.
    TerminalServices services_;
    std::unique_ptr<VelmarViewController> view_; // Last: destroyed before the objects it uses.
};

} // namespace velmar
