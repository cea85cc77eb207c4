#pragma once

#include <string>

namespace velmar {

/// The clipboard of the user's session. Main thread only.
class SimplePasteboard {
public:
    virtual ~SimplePasteboard() = default;

    /// Replaces the clipboard's content by a text. Returns false, without a change, if the text is not UTF-8.
    /// The desktop decides how long the text stays after the end of the program.
    [[nodiscard]] virtual bool setString(const std::string &text) = 0;
};

} // namespace velmar
