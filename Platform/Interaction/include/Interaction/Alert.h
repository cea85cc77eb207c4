#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace velmar {

/// A picture that an AlertPresenter has read.
class AlertIcon {
public:
    virtual ~AlertIcon() = default;
};

/// What an alert says.
struct Alert {
    enum class Style : std::uint8_t { informational, warning, critical };

    Style style = Style::warning;
    std::string messageText;
    std::string informativeText;      ///< A second, quieter paragraph; empty for none.
    std::vector<std::string> buttons; ///< From the first, which is the default; one "OK" where there is none.
    std::shared_ptr<const AlertIcon> icon = nullptr; ///< In place of the sign of the style.
};

} // namespace velmar
