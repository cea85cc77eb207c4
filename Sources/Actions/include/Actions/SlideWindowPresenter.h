#pragma once

#include <Configuration/InteractionActionItems.h>

#include <memory>

namespace velmar {

/// Shows a slide in a window of its own, of which there is one at a time. Main thread.
class SlideWindowPresenter {
public:
    virtual ~SlideWindowPresenter() = default;

    /// Opens a window in place of the one that is open. The item is kept while its window is open. Throws
    /// VelmarError::InternalError where there is no screen.
    virtual void open(std::shared_ptr<const ActionItems::OpenWindow> item) = 0;

    /// Closes the window, if one is open.
    virtual void close() = 0;
};

} // namespace velmar
