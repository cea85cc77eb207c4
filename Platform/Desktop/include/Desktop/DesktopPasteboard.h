#pragma once

#include <Interaction/SimplePasteboard.h>

namespace velmar {

/// The clipboard of the desktop. What was put there stays after the program's end where a clipboard manager
/// runs, which takes it over when the application is destroyed.
class DesktopPasteboard final : public SimplePasteboard {
public:
    [[nodiscard]] bool setString(const std::string &text) override;
};

} // namespace velmar
