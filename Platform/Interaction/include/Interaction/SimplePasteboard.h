#pragma once

#include <string>

namespace velmar {

/// Where the user's programs find what was copied last. Main thread.
class SimplePasteboard {
public:
    virtual ~SimplePasteboard() = default;

    /// Puts a text there, in place of what was there before. False, and nothing is changed, if it is not
    /// UTF-8. How long it stays after the program's end is up to the desktop.
    [[nodiscard]] virtual bool setString(const std::string &text) = 0;
};

} // namespace velmar
