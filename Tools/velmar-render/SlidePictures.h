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

/// Pictures of what the window shows, slide by slide, by the views of the application and with their own
/// fonts, theme and texts. It shows the configuration of the shared AppManager and needs an application with
/// its theme. No set of actions runs and nothing is asked for. Main thread.
class SlidePictures {
public:
    /// The appearance must outlive the pictures.
    SlidePictures(QSize size, const DesktopAppearance &appearance);

    /// The size in which the window opens, in points; a window over the whole screen is one of 1280x800.
    [[nodiscard]] static QSize sizeOfWindow();

    /// The slides of the configuration's mode; with "MenuBar" the one below the menu bar.
    [[nodiscard]] static std::size_t count();

    /// The slide at an index below `count()`, as if the user had come to it by the buttons; mandatory
    /// elements hold nobody back. Null if there is no memory for a picture of that size.
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
    std::unique_ptr<VelmarViewController> view_; // Before what it uses goes.
};

} // namespace velmar
