#pragma once

#include <Interaction/SimplePasteboard.h>

namespace velmar {

/// The desktop's clipboard. A clipboard manager, if one runs, takes the content over when the application is
/// destroyed.
class DesktopPasteboard final : public SimplePasteboard {
public:
    [[nodiscard]] bool setString(const std::string &text) override;
};

} // namespace velmar
