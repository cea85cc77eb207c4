#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace velmar {

/// What a modal alert says.
struct Alert {
    enum class Style : std::uint8_t { informational, warning, critical };

    Style style = Style::warning;
    std::string messageText;
    std::string informativeText;      ///< A second, quieter paragraph; empty for none.
    std::vector<std::string> buttons; ///< At least one; the first is the default.
};

/// Shows alerts.
class AlertPresenter {
public:
    virtual ~AlertPresenter() = default;

    /// Returns when a button was pressed, with its index; Escape and the window's close button count as the
    /// last one. Runs a loop of its own meanwhile. Main thread.
    virtual std::size_t runModal(const Alert &alert) = 0;
};

/// Shows them as windows of the desktop.
class DesktopAlertPresenter final : public AlertPresenter {
public:
    std::size_t runModal(const Alert &alert) override;
};

} // namespace velmar
