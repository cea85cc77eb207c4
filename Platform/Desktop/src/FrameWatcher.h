#pragma once

#include <QAbstractNativeEventFilter>

#include <cstdint>
#include <functional>

class QWindow;

namespace velmar {

/// Detects the moment at which the window manager has set the frame of a window. The only sign is a property
/// that it sets some time after mapping on X11. The callback is never called on other platforms. Main thread
/// only.
class FrameWatcher final : public QAbstractNativeEventFilter {
public:
    /// Calls `framed` once, from the event loop. The window must outlive the watcher.
    FrameWatcher(const QWindow &window, std::function<void()> framed);
    ~FrameWatcher() override;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    const QWindow &window_;
    std::function<void()> framed_;
    std::uint32_t property_ = 0;
};

} // namespace velmar
