#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace velmar {

/// A picture loaded by an AlertPresenter.
class AlertIcon {
public:
    virtual ~AlertIcon() = default;
};

/// Content of an alert.
struct Alert {
    enum class Style : std::uint8_t { informational, warning, critical };

    Style style = Style::warning;
    std::string messageText;
    std::string informativeText; ///< Secondary text below the message; empty for none.
    /// Button titles; the first is the default button. One "OK" button is shown if there are none.
    std::vector<std::string> buttons;
    std::shared_ptr<const AlertIcon> icon = nullptr; ///< Replaces the icon of the style.
};

} // namespace velmar
