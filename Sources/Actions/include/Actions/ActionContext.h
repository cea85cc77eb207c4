#pragma once

#include <Actions/SlidesActionManager.h>

#include <functional>
#include <memory>

namespace velmar {

struct Services;

/// The place that actions run in. The services outlive every action.
struct ActionContext {
    const Services &services;
    /// Begins the termination of the application, whatever would hold a quit back. Any thread.
    std::function<void()> terminateApp;
    std::shared_ptr<SlidesActionManager> slides = SlidesActionManager::shared();
};

} // namespace velmar
