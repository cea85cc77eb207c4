#pragma once

#include <functional>
#include <memory>
#include <string>

namespace velmar {

/// Sees each key-down event of the application before any window does, for as long as it lives. Modifier keys
/// alone are no key-down events. Main thread.
class KeyEventMonitor {
public:
    /// The modifiers as docs/decisions/0016-modifier-keys.md has them.
    struct Event {
        std::string charactersIgnoringModifiers; ///< UTF-8; empty for keys without a character.
        bool command = false;
        bool control = false;
        bool option = false;
        bool shift = false;
    };

    /// True if the event goes no further.
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
