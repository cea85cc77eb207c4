#include <Dispatch/DispatchGroup.h>

#include <cstddef>
#include <mutex>
#include <stdexcept>
#include <utility>
#include <vector>

namespace velmar {

struct DispatchGroup::State {
    struct Notification {
        DispatchQueue queue;
        std::function<void()> function;
    };

    std::mutex mutex;
    std::size_t underWay = 0;
    std::vector<Notification> notifications;
};

DispatchGroup::DispatchGroup() : state_(std::make_shared<State>()) {}

void DispatchGroup::enter() const {
    const std::lock_guard lock(state_->mutex);
    ++state_->underWay;
}

void DispatchGroup::leave() const {
    // Functions refused by a queue are destroyed after the lock is released: their captures may use the
    // group.
    std::vector<State::Notification> told;
    const std::lock_guard lock(state_->mutex);
    if (state_->underWay == 0) {
        throw std::logic_error("DispatchGroup::leave without enter");
    }
    if (--state_->underWay > 0) {
        return;
    }
    // Posted under the lock, so that later notifications of other threads are posted later.
    told.swap(state_->notifications);
    for (auto &[queue, function] : told) {
        static_cast<void>(queue.post(function));
    }
}

void DispatchGroup::notify(DispatchQueue queue, std::function<void()> function) const {
    const std::lock_guard lock(state_->mutex);
    if (state_->underWay == 0) {
        static_cast<void>(queue.post(function)); // If refused, destroyed after the lock.
    } else {
        state_->notifications.push_back({std::move(queue), std::move(function)});
    }
}

} // namespace velmar
