#include <Views/Content/VariablesRefresh.h>

#include <atomic>
#include <utility>

namespace velmar {

namespace {
constexpr int mostRounds = 8;
}

class VariablesRefresh::Observer final : public ObservableContent,
                                         public std::enable_shared_from_this<Observer> {
public:
    Observer(MainQueue &mainQueue, std::function<void()> refresh,
             std::shared_ptr<ContentManagerProtocol> contentManager)
        : ObservableContent(std::move(contentManager)), mainQueue_(mainQueue), refresh_(std::move(refresh)) {}

    void letGo() { refresh_ = nullptr; }

    void variableDidChange(std::string_view /*name*/, const std::optional<std::string> & /*former*/,
                           const std::string & /*value*/) override {
        request();
    }

    /// Posts a refresh unless one is pending. Any thread.
    void request() {
        if (isPending_.exchange(true)) {
            return;
        }
        mainQueue_.async([observer = weak_from_this()] {
            if (const auto self = observer.lock()) {
                // Reset before the call: the refresh may not see later changes.
                self->isPending_ = false;
                // A copy: the function may destroy its owner.
                if (const auto function = self->refresh_) {
                    function();
                }
            }
        });
    }

private:
    MainQueue &mainQueue_;
    std::function<void()> refresh_; // Main thread.
    std::atomic<bool> isPending_ = false;
};

VariablesRefresh::VariablesRefresh(MainQueue &mainQueue, std::function<void()> refresh,
                                   std::shared_ptr<ContentManagerProtocol> contentManager)
    : observer_(std::make_shared<Observer>(mainQueue, std::move(refresh), std::move(contentManager))) {
    observer_->contentVariables().subscribe(observer_, VariableNames());
}

VariablesRefresh::~VariablesRefresh() {
    // A writer on another thread may still own the observer.
    observer_->letGo();
}

void VariablesRefresh::follow(const VariableNames &names) {
    observer_->setConcerningVariables(names);
}

void VariablesRefresh::follow(const std::function<VariableNames(const Variables &)> &namesFor) {
    const auto present = [&] { return namesFor(*observer_->contentVariables().variables()); };
    // A value that refers to further names may change before its own name is observed.
    VariableNames followed;
    VariableNames names = present();
    for (int round = 0; names != followed && round < mostRounds; ++round) {
        follow(names);
        followed = std::exchange(names, present());
    }
    // Frequent writes must not block the main thread: a refresh is requested instead.
    if (names != followed) {
        observer_->request();
    }
}

} // namespace velmar
