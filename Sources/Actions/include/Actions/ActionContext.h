#pragma once

#include <Actions/SlidesActionManager.h>

#include <functional>
#include <memory>

namespace velmar {

struct Services;

/// The environment of the actions. The services must outlive every action.
struct ActionContext {
    const Services &services;
    /// Begins the termination of the application, even if the user may not quit. Any thread.
    std::function<void()> terminateApp;
    std::shared_ptr<SlidesActionManager> slides = SlidesActionManager::shared();
};

} // namespace velmar
