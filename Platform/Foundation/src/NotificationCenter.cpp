#include <Foundation/NotificationCenter.h>

#include <algorithm>
#include <atomic>
#include <exception>
#include <iterator>
#include <map>
#include <mutex>
#include <utility>
#include <vector>

namespace velmar {

struct NotificationObserver::Registration {
    std::weak_ptr<NotificationCenter::State> center;
    std::string name;
    NotificationCenter::Handler handler;
    std::atomic<bool> isActive{true};

    Registration(std::weak_ptr<NotificationCenter::State> state, std::string ofName,
                 NotificationCenter::Handler function)
        : center(std::move(state)), name(std::move(ofName)), handler(std::move(function)) {}
    void end();
};

struct NotificationCenter::State {
    // Lists are immutable: post() iterates over a snapshot without the lock.
    using Observers = std::vector<std::shared_ptr<NotificationObserver::Registration>>;

    std::mutex mutex;
    std::map<std::string, std::shared_ptr<const Observers>, std::less<>> observersByName;

    void replace(const std::string &name, Observers observers) {
        if (observers.empty()) {
            observersByName.erase(name);
        } else {
            observersByName[name] = std::make_shared<const Observers>(std::move(observers));
        }
    }
};

void NotificationObserver::Registration::end() {
    isActive = false;
    const auto state = center.lock();
    if (!state) {
        return;
    }
    // Outlives the lock: destroying a handler's captures may call back into the centre.
    std::shared_ptr<const NotificationCenter::State::Observers> former;
    const std::lock_guard lock(state->mutex);
    const auto found = state->observersByName.find(name);
    if (found == state->observersByName.end()) {
        return;
    }
    former = found->second;
    NotificationCenter::State::Observers others;
    std::copy_if(former->begin(), former->end(), std::back_inserter(others),
                 [this](const auto &each) { return each.get() != this; });
    state->replace(name, std::move(others));
}

NotificationObserver::NotificationObserver(std::shared_ptr<Registration> registration)
    : registration_(std::move(registration)) {}

NotificationObserver &NotificationObserver::operator=(NotificationObserver &&other) noexcept {
    if (this == &other) {
        return *this;
    }
    if (const auto former = std::exchange(registration_, std::move(other.registration_))) {
        former->end();
    }
    return *this;
}

NotificationObserver::~NotificationObserver() {
    if (registration_) {
        registration_->end();
    }
}

NotificationCenter::NotificationCenter() : state_(std::make_shared<State>()) {}

NotificationCenter::~NotificationCenter() = default;

NotificationObserver NotificationCenter::addObserver(std::string name, Handler handler) {
    auto registration =
        std::make_shared<NotificationObserver::Registration>(state_, std::move(name), std::move(handler));
    std::shared_ptr<const State::Observers> former;
    const std::lock_guard lock(state_->mutex);
    State::Observers observers;
    if (const auto found = state_->observersByName.find(registration->name);
        found != state_->observersByName.end()) {
        former = found->second;
        observers = *former;
    }
    observers.push_back(registration);
    state_->replace(registration->name, std::move(observers));
    return NotificationObserver(std::move(registration));
}

void NotificationCenter::post(std::string_view name) {
    std::shared_ptr<const State::Observers> observers;
    {
        const std::lock_guard lock(state_->mutex);
        const auto found = state_->observersByName.find(name);
        if (found == state_->observersByName.end()) {
            return;
        }
        observers = found->second;
    }
    std::exception_ptr first;
    for (const auto &observer : *observers) {
        if (!observer->isActive) {
            continue;
        }
        try {
            observer->handler();
        } catch (...) {
            if (!first) {
                first = std::current_exception();
            }
        }
    }
    if (first) {
        std::rethrow_exception(first);
    }
}

NotificationCenter &NotificationCenter::defaultCenter() {
    // Never destroyed: static objects may hold observers.
    static auto &centre = *new NotificationCenter;
    return centre;
}

} // namespace velmar
