#pragma once

#include <QAbstractNativeEventFilter>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <map>
#include <vector>

class QWindow;

namespace velmar {

/// Sees what windows of other applications come above ours, or take the keyboard's focus away, and has that
/// undone. The desktop's dialogs for a password are let through. Does nothing where there is no X server.
class StackingGuard final : public QAbstractNativeEventFilter {
public:
    /// The front window and its function must outlive the guard.
    StackingGuard(QWindow &front, std::function<void()> bringToFront);
    ~StackingGuard() override;

protected:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    void look();
    void learn(const std::vector<std::uint32_t> &stack);
    /// Lifts the dialogs for a password that are below ours. True if other windows are above ours.
    bool findMisplaced(const std::vector<std::uint32_t> &stack);

    QWindow &front_;
    std::function<void()> bringToFront_;
    std::uint32_t stacking_;
    std::uint32_t active_;
    std::map<std::uint32_t, int> attempts_; // By the windows that were found in the wrong place.
    std::map<std::uint32_t, bool> asksForPassword_;
    QTimer later_;
};

} // namespace velmar
