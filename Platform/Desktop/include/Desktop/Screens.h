#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace velmar {

/// A rectangle of the desktop in points, y growing downwards from the top of the first screen.
struct ScreenFrame {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const ScreenFrame &) const = default;
};

/// The screens of this moment.
struct Screens {
    std::vector<ScreenFrame> frames;
    std::optional<ScreenFrame> main; ///< The desktop's primary screen.

    /// Main thread.
    [[nodiscard]] static Screens current();
};

/// Tells when screens have come, gone, or changed their place, for as long as it lives: once for changes that
/// come together, from the event loop. Main thread.
class ScreensObserver {
public:
    explicit ScreensObserver(std::function<void()> changed);
    ~ScreensObserver();
    ScreensObserver(const ScreensObserver &) = delete;
    ScreensObserver &operator=(const ScreensObserver &) = delete;

private:
    class Connections;
    std::unique_ptr<Connections> connections_;
};

} // namespace velmar
