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

struct NotificationCenter::Token::Registration {
    std::weak_ptr<State> centre;
    std::string name;
    Handler handler;
    std::atomic<bool> isActive{true};

    Registration(std::weak_ptr<State> state, std::string ofName, Handler function)
        : centre(std::move(state)), name(std::move(ofName)), handler(std::move(function)) {}
    void end();
};

struct NotificationCenter::State {
    // A list never changes once it is there: a post walks the one of its beginning without a lock.
    using Observers = std::vector<std::shared_ptr<Token::Registration>>;

    std::mutex mutex;
    std::map<std::string, std::shared_ptr<const Observers>, std::less<>> observersByName;

    void replace(const std::string &name, Observers observers) {
        if (observers.empty())
            observersByName.erase(name);
        else
            observersByName[name] = std::make_shared<const Observers>(std::move(observers));
    }
};

void NotificationCenter::Token::Registration::end() {
    isActive = false;
    const auto state = centre.lock();
    if (!state)
        return;
    // Holds the last reference of a list until the lock is gone: a handler's captures may call back when they
    // die.
    std::shared_ptr<const State::Observers> former;
    const std::lock_guard lock(state->mutex);
    const auto found = state->observersByName.find(name);
    if (found == state->observersByName.end())
        return;
    former = found->second;
    State::Observers others;
    std::copy_if(former->begin(), former->end(), std::back_inserter(others),
                 [this](const auto &each) { return each.get() != this; });
    state->replace(name, std::move(others));
}

NotificationCenter::Token::Token(std::shared_ptr<Registration> registration)
    : registration_(std::move(registration)) {}

NotificationCenter::Token &NotificationCenter::Token::operator=(Token &&other) noexcept {
    if (this == &other)
        return *this;
    if (const auto former = std::exchange(registration_, std::move(other.registration_)))
        former->end();
    return *this;
}

NotificationCenter::Token::~Token() {
    if (registration_)
        registration_->end();
}

NotificationCenter::NotificationCenter() : state_(std::make_shared<State>()) {}

NotificationCenter::~NotificationCenter() = default;

NotificationCenter::Token NotificationCenter::addObserver(std::string name, Handler handler) {
    auto registration = std::make_shared<Token::Registration>(state_, std::move(name), std::move(handler));
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
    return Token(std::move(registration));
}

void NotificationCenter::post(std::string_view name) {
    std::shared_ptr<const State::Observers> observers;
    {
        const std::lock_guard lock(state_->mutex);
        const auto found = state_->observersByName.find(name);
        if (found == state_->observersByName.end())
            return;
        observers = found->second;
    }
    std::exception_ptr first;
    for (const auto &observer : *observers) {
        if (!observer->isActive)
            continue;
        try {
            observer->handler();
        } catch (...) {
            if (!first)
                first = std::current_exception();
        }
    }
    if (first)
        std::rethrow_exception(first);
}

NotificationCenter &NotificationCenter::defaultCenter() {
    // Never destroyed: tokens of static objects may end at any time.
    static auto &centre = *new NotificationCenter;
    return centre;
}

} // namespace velmar
