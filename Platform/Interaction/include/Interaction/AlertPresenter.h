#pragma once

#include <Interaction/Alert.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

namespace velmar {

/// Shows alerts, which keep the user from the application's windows until they are answered. An answer is the
/// index of a button. Escape and the window's close button press the one that says "Cancel", or the last one
/// where none does. Main thread.
class AlertPresenter {
public:
    using Completion = std::function<void(std::size_t button)>;

    virtual ~AlertPresenter() = default;

    /// The picture of a file, by its absolute path, for `Alert::icon`; null if there is none that can be
    /// read.
    [[nodiscard]] virtual std::shared_ptr<const AlertIcon> icon(const std::string &path) const = 0;

    /// Shows the alert when those that were presented before are answered, and tells the answer, once, from
    /// the main loop. Returns at once. Whoever is never answered because the application ends is not told.
    virtual void present(Alert alert, Completion completion) = 0;

    /// Shows the alert at once, above any other, and returns with its answer. Runs a loop of its own
    /// meanwhile.
    virtual std::size_t runModal(const Alert &alert) = 0;
};

} // namespace velmar
