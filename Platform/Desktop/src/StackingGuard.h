#pragma once

#include <QAbstractNativeEventFilter>
#include <QElapsedTimer>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

class QWindow;

namespace velmar {

/// Sees what windows of other applications come above ours, or take the keyboard's focus away, and has that
/// undone, unless the same window does so again and again. The desktop's dialogs for a password are let
/// through. Does nothing where there is no X server.
class StackingGuard final : public QAbstractNativeEventFilter {
public:
    /// The front window must outlive the guard. `giveUp` is told the application of a window that is left
    /// alone.
    StackingGuard(QWindow &front, std::function<void()> bringToFront,
                  std::function<void(const std::string &application)> giveUp);
    ~StackingGuard() override;

protected:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    struct Fight {
        int attempts = 0;
        QElapsedTimer sinceLast;
    };

    void look();
    void learn(const std::vector<std::uint32_t> &stack);
    /// Lifts the dialogs for a password that are below ours. True if other windows are above ours.
    bool findMisplaced(const std::vector<std::uint32_t> &stack);
    /// Counts an attempt against a window; false once there were too many in a row.
    bool mayFight(std::uint32_t window);

    QWindow &front_;
    std::function<void()> bringToFront_;
    std::function<void(const std::string &)> giveUp_;
    std::uint32_t stacking_;
    std::uint32_t active_;
    std::map<std::uint32_t, Fight> fights_; // By the windows that came above ours or took the keyboard.
    std::map<std::uint32_t, bool> asksForPassword_;
    QTimer later_;
};

} // namespace velmar
