// Benchmark of a parallel set of actions without work. The reference posts the same number of functions to
// the pool.

#include "Median.h"

#include <Actions/Action.h>
#include <Actions/ActionDispatcher.h>
#include <Configuration/ActionSetItem.h>
#include <Dispatch/DispatchGroup.h>
#include <Dispatch/DispatchQueue.h>

#include <fmt/format.h>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <utility>
#include <vector>

namespace {

using namespace velmar;

constexpr int rounds = 201;
constexpr std::size_t actionsCount = 1000;

class NoWork final : public Action {
public:
    explicit NoWork(std::shared_ptr<const ActionItem> item) : Action(std::move(item), nullptr) {}

private:
    void perform() override { complete(true); }
};

// Returns the time from the call of `begin` until it calls its argument, on any thread.
double microseconds(const std::function<void(std::function<void()>)> &begin) {
    std::promise<void> done;
    const auto start = std::chrono::steady_clock::now();
    begin([&done] { done.set_value(); });
    done.get_future().wait();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

void postFunctions(std::function<void()> completion) {
    const DispatchGroup group;
    for (std::size_t i = 0; i < actionsCount; ++i) {
        group.enter();
        DispatchQueue::global().async([group] { group.leave(); });
    }
    group.notify(DispatchQueue::global(), std::move(completion));
}

} // namespace

int main() {
    auto item = std::make_shared<ActionSetItemProtocol>();
    item->_actions.set(std::vector<ActionItem>(actionsCount, ActionItem{ActionItem::Log()}));
    const ActionSet set{UUID(), item};
    const auto dispatcher = std::make_shared<ActionDispatcher>(
        [](std::shared_ptr<const ActionItem> action) { return std::make_shared<NoWork>(std::move(action)); });
    std::vector<double> ours;
    std::vector<double> reference;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(
            microseconds([&](auto completion) { dispatcher->dispatch(set, std::move(completion)); }));
        reference.push_back(microseconds(&postFunctions));
    }
    fmt::print("actions ours={:.1f}us reference={:.1f}us ratio={:.3f} goal=<=3\n", median(ours),
               median(reference), median(ours) / median(reference));
}
