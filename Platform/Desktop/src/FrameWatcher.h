#pragma once

#include <QAbstractNativeEventFilter>

#include <cstdint>
#include <functional>

class QWindow;

namespace velmar {

/// Waits until the window manager has told what it puts around a window: it does so in a property, some time
/// after the window is mapped, and nothing else says when. On platforms other than X11 it never comes. Main
/// thread.
class FrameWatcher final : public QAbstractNativeEventFilter {
public:
    /// `framed` runs once, from the event loop. The window must outlive the watcher.
    FrameWatcher(const QWindow &window, std::function<void()> framed);
    ~FrameWatcher() override;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    const QWindow &window_;
    std::function<void()> framed_;
    std::uint32_t property_ = 0;
};

} // namespace velmar
