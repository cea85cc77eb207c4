#include <Dispatch/AnyQueue.h>

namespace velmar {

void AnyQueue::async(std::function<void()> function) const {
    if (MainQueue *const *queue = std::get_if<MainQueue *>(&queue_)) {
        (*queue)->async(std::move(function));
    } else {
        std::get<DispatchQueue>(queue_).async(std::move(function));
    }
}

bool AnyQueue::isCurrent() const {
    MainQueue *const *queue = std::get_if<MainQueue *>(&queue_);
    return queue != nullptr && (*queue)->isCurrent();
}

} // namespace velmar
