#include <logger/Logger.h>

#include <algorithm>
#include <mutex>
#include <utility>

#include <pthread.h>
#include <unistd.h>

#include <logger/BaseDestination.h>
#include <logger/ScopedDestinations.h>

#include "LogRoute.h"

namespace velmar {

namespace {

struct Registry {
    std::mutex mutex;
    std::shared_ptr<const LogRoutes> routes = std::make_shared<const LogRoutes>();

    std::shared_ptr<const LogRoutes> snapshot() {
        const std::lock_guard lock(mutex);
        return routes;
    }
};

// Never destroyed: destructors of static objects and threads that are still running may log.
Registry &registry() {
    static Registry &instance = *new Registry;
    return instance;
}

std::string nameOfThisThread() {
    if (gettid() == getpid()) {
        return "main";
    }
    char name[16] = {}; // the kernel's limit
    pthread_getname_np(pthread_self(), name, sizeof name);
    return name;
}

std::uint8_t lowestLevel(const LogRoutes &routes) {
    std::uint8_t lowest = logLevelCount;
    for (const auto &route : routes.items) {
        lowest = std::min(lowest, static_cast<std::uint8_t>(route->minLevel()));
    }
    return lowest;
}

} // namespace

void Logger::addDestination(std::shared_ptr<BaseDestination> destination) {
    auto route = std::make_shared<LogRoute>(std::move(destination));
    auto &[mutex, routes] = registry();
    const std::lock_guard lock(mutex);
    auto longer = std::make_shared<LogRoutes>(*routes);
    longer->items.push_back(std::move(route));
    minimumLevel_.store(lowestLevel(*longer), std::memory_order_relaxed);
    routes = std::move(longer);
}

void Logger::removeAllDestinations() {
    exchange(std::make_shared<const LogRoutes>());
}

bool Logger::flush(std::chrono::milliseconds bound) {
    const auto deadline = std::chrono::steady_clock::now() + bound;
    const auto routes = registry().snapshot();
    // Drains every destination, even if a previous one failed.
    return std::count_if(routes->items.begin(), routes->items.end(),
                         [&](const auto &route) { return !route->drain(deadline); }) == 0;
}

void Logger::deliver(LogLevel level, MessageSource message, std::string_view context,
                     const SourceLocation &where) noexcept {
    const auto time = std::chrono::system_clock::now();
    const auto routes = registry().snapshot();
    for (const auto &route : routes->items) {
        try {
            if (route->accepts(level, where)) {
                route->send({.level = level,
                             .time = time,
                             .where = where,
                             .message = message(),
                             .context = std::string(context),
                             .thread = route->needsThreadName() ? nameOfThisThread() : std::string()});
            }
        } catch (...) {
            // The message's function, a filter or an allocation threw: only this line is lost.
        }
    }
}

std::shared_ptr<const LogRoutes> Logger::exchange(std::shared_ptr<const LogRoutes> routes) {
    auto &[mutex, current] = registry();
    const std::lock_guard lock(mutex);
    minimumLevel_.store(lowestLevel(*routes), std::memory_order_relaxed);
    return std::exchange(current, std::move(routes));
}

ScopedDestinations::ScopedDestinations(std::vector<std::shared_ptr<BaseDestination>> destinations) {
    auto routes = std::make_shared<LogRoutes>();
    for (auto &destination : destinations) {
        routes->items.push_back(std::make_shared<LogRoute>(std::move(destination)));
    }
    previous_ = Logger::exchange(std::move(routes));
}

ScopedDestinations::~ScopedDestinations() {
    Logger::flush();
    Logger::exchange(std::move(previous_));
}

} // namespace velmar
