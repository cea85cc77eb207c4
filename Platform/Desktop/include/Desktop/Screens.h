#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace velmar {

/// A rectangle of the desktop in points. The y axis points down from the top of the first screen.
struct ScreenFrame {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const ScreenFrame &) const = default;
};

/// A snapshot of the screens.
struct Screens {
    std::vector<ScreenFrame> frames;
    std::optional<ScreenFrame> main; ///< The desktop's primary screen, if any.

    /// Returns the current screens. Main thread only.
    [[nodiscard]] static Screens current();
};

/// Observes screens from construction to destruction. Calls `changed` from the event loop, once for
/// simultaneous changes, after screens were added, removed or moved. Main thread only.
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
