#pragma once

#include <Interaction/Alert.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

namespace velmar {

/// Shows alerts that block the application's windows until they are answered. An answer is the index of a
/// button. Escape and the window's close button choose the button titled "Cancel", or the last one if there
/// is none. Main thread only.
class AlertPresenter {
public:
    using Completion = std::function<void(std::size_t button)>;

    virtual ~AlertPresenter() = default;

    /// Loads the picture at an absolute path for `Alert::icon`. Returns nullptr if it is missing or cannot be
    /// read.
    [[nodiscard]] virtual std::shared_ptr<const AlertIcon> icon(const std::string &path) const = 0;

    /// Queues the alert behind those already presented and returns at once. The completion is called once,
    /// from the main loop, with the answer. It is not called if the application ends first.
    virtual void present(Alert alert, Completion completion) = 0;

    /// Shows the alert at once, above any other, in a nested event loop. Returns the answer.
    virtual std::size_t runModal(const Alert &alert) = 0;
};

} // namespace velmar
