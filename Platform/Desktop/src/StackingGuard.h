#pragma once

#include <QAbstractNativeEventFilter>
#include <QDeadlineTimer>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

class QWindow;

namespace velmar {

/// Sees what windows of other applications come above ours, or take the keyboard's focus away, and has that
/// undone, unless the same application does so again and again. The desktop's dialogs for a password are let
/// through. Does nothing where there is no X server.
class StackingGuard final : public QAbstractNativeEventFilter {
public:
    /// Told the name, maybe an empty one, of an application whose windows are left alone: above ours, or a
    /// dialog for a password below them.
    using GiveUp = std::function<void(const std::string &application, bool asksForPassword)>;

    /// The front window must outlive the guard.
    StackingGuard(QWindow &front, std::function<void()> bringToFront, GiveUp giveUp);
    ~StackingGuard() override;

protected:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    struct Other {
        std::string application;
        bool asksForPassword = false;
    };
    struct Fight {
        int attempts = 0;
        std::uint64_t look = 0; // The last one that found something to fight for; an attempt each.
        QDeadlineTimer isOver;
    };

    void look();
    void learn(const std::vector<std::uint32_t> &stack);
    /// Lifts the dialogs for a password that are below ours. True if other windows are above ours.
    bool findMisplaced(const std::vector<std::uint32_t> &stack);
    /// Counts an attempt against a window's application; false once there were too many in a row.
    bool mayFight(std::uint32_t window);

    QWindow &front_;
    std::function<void()> bringToFront_;
    GiveUp giveUp_;
    std::uint32_t stacking_;
    std::uint32_t active_;
    std::uint64_t looks_ = 0;
    std::map<std::string, Fight> fights_;   // By application: each of its windows may be a new one.
    std::map<std::uint32_t, Other> others_; // Those of the stack that are not ours.
    QTimer later_;
};

} // namespace velmar
