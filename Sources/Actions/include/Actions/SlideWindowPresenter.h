#pragma once

#include <Configuration/InteractionActionItems.h>

#include <memory>

namespace velmar {

/// Shows a slide in a separate window, one window at a time. Main thread.
class SlideWindowPresenter {
public:
    virtual ~SlideWindowPresenter() = default;

    /// Opens a window, which replaces any open one and owns the item. Throws VelmarError::InternalError if
    /// there is no screen.
    virtual void open(std::shared_ptr<const ActionItems::OpenWindow> item) = 0;

    /// Closes the window, if one is open.
    virtual void close() = 0;
};

} // namespace velmar
