#include <Views/Content/VariablesRefresh.h>

#include <atomic>
#include <utility>

namespace velmar {

class VariablesRefresh::Observer final : public ObservableContent,
                                         public std::enable_shared_from_this<Observer> {
public:
    Observer(MainQueue &mainQueue, std::function<void()> refresh)
        : mainQueue_(mainQueue), refresh_(std::move(refresh)) {}

    void letGo() { refresh_ = nullptr; }

protected:
    void concerningVariableDidChange(std::string_view /*name*/, const std::optional<std::string> & /*former*/,
                                     const std::string & /*value*/) override {
        if (isPending_.exchange(true)) {
            return;
        }
        mainQueue_.async([observer = weak_from_this()] {
            if (const auto self = observer.lock()) {
                self->refresh();
            }
        });
    }

private:
    void refresh() {
        // What changes from here on may not be seen any more.
        isPending_ = false;
        // The function may end its owner.
        if (const auto function = refresh_) {
            function();
        }
    }

    MainQueue &mainQueue_;
    std::function<void()> refresh_; // Main thread.
    std::atomic<bool> isPending_ = false;
};

VariablesRefresh::VariablesRefresh(MainQueue &mainQueue, std::function<void()> refresh)
    : observer_(std::make_shared<Observer>(mainQueue, std::move(refresh))) {
    observer_->contentVariables().subscribe(observer_);
}

VariablesRefresh::~VariablesRefresh() {
    // A writer on another thread may hold the observer still.
    observer_->letGo();
}

void VariablesRefresh::follow(const VariableNames &names) {
    observer_->setConcerningVariables(names);
}

void VariablesRefresh::follow(const std::function<VariableNames(const Variables &)> &namesFor) {
    const auto present = [&] { return namesFor(*observer_->contentVariables().variables()); };
    // A value that brings in further names may change before its own name is followed.
    VariableNames followed;
    for (VariableNames names = present(); names != followed; names = present()) {
        follow(names);
        followed = std::move(names);
    }
}

} // namespace velmar
