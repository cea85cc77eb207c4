#pragma once

#include <functional>
#include <memory>
#include <string>

namespace velmar {

/// Receives each key-down event of the application before its windows do, from construction to destruction.
/// Modifier keys alone don't count as key-down events. Main thread only.
class KeyEventMonitor {
public:
    /// A key-down event. docs/decisions/0016-modifier-keys.md describes the modifiers.
    struct Event {
        std::string charactersIgnoringModifiers; ///< UTF-8; empty for keys without a character.
        bool command = false;
        bool control = false;
        bool option = false;
        bool shift = false;
    };

    /// Returns true to stop the event.
    using Handler = std::function<bool(const Event &)>;

    explicit KeyEventMonitor(Handler handler);
    ~KeyEventMonitor();
    KeyEventMonitor(const KeyEventMonitor &) = delete;
    KeyEventMonitor &operator=(const KeyEventMonitor &) = delete;

private:
    class Filter;
    std::unique_ptr<Filter> filter_;
};

} // namespace velmar
