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

/// Watches for other applications' windows that are raised above ours or take the keyboard, and reverts that,
/// except for an application that repeats it too often. The desktop's password dialogs are let through. Does
/// nothing without an X server.
class StackingGuard final : public QAbstractNativeEventFilter {
public:
    /// Called with the name, possibly empty, of an application whose windows are left alone: they stay above
    /// ours, or a password dialog stays below.
    using GiveUp = std::function<void(const std::string &application, bool asksForPassword)>;

    /// `front` must outlive the guard.
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
        std::uint64_t look = 0; // last look that counted an attempt; one attempt per look
        QDeadlineTimer isOver;
    };

    void look();
    void learn(const std::vector<std::uint32_t> &stack);
    /// Raises password dialogs that are below our windows. Returns true if other windows are above ours.
    bool findMisplaced(const std::vector<std::uint32_t> &stack);
    /// Counts an attempt against a window's application. Returns false after too many attempts in a row.
    bool mayFight(std::uint32_t window);

    QWindow &front_;
    std::function<void()> bringToFront_;
    GiveUp giveUp_;
    std::uint32_t stacking_;
    std::uint32_t active_;
    std::uint64_t looks_ = 0;
    std::map<std::string, Fight> fights_;   // by application, since it may create a new window each time
    std::map<std::uint32_t, Other> others_; // windows of other applications in the stack
    QTimer later_;
};

} // namespace velmar
