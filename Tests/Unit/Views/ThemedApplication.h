#pragma once

#include <Desktop/DesktopAppearance.h>
#include <Views/CustomViews/Theme.h>

#include <QApplication>

#include <memory>

namespace velmar {

/// For a group of tests: the application with its theme, in which views move at once. A fixture derives from
/// it beside its own base and begins and ends it with the group.
class ThemedApplication {
protected:
    static void begin() {
        static int argumentCount = 1;
        static char name[] = "test";
        static char *arguments[] = {name, nullptr};
        application_ = std::make_unique<QApplication>(argumentCount, arguments);
        appearance_ = std::make_unique<DesktopAppearance>();
        appearance_->setAnimated(false);
        Theme::install(*appearance_);
    }
    static void end() {
        application_.reset();
        appearance_.reset();
    }

    static DesktopAppearance &appearance() { return *appearance_; }

private:
    static inline std::unique_ptr<QApplication> application_;
    static inline std::unique_ptr<DesktopAppearance> appearance_;
};

} // namespace velmar
