#include <Actions/DispatchableItem.h>

#include <Actions/ExecutionActions.h>
#include <Actions/InteractionActions.h>

#include <utility>

namespace velmar {

namespace {

/// Makes the runtime form of one item.
struct Maker {
    std::shared_ptr<const ActionItem> item;
    std::shared_ptr<const ActionContext> context;

    using Result = std::shared_ptr<Dispatchable>;
    Result operator()(const ActionItem::Log &) const { return make<Actions::Log>(); }
    Result operator()(const ActionItem::DisplayAlert &) const { return make<Actions::DisplayAlert>(); }
    Result operator()(const ActionItem::DisplayNotification &) const {
        return make<Actions::DisplayNotification>();
    }
    Result operator()(const ActionItem::PlaySound &) const { return make<Actions::PlaySound>(); }
    Result operator()(const ActionItem::TerminateApp &) const { return make<Actions::TerminateApp>(); }
    Result operator()(const ActionItem::CopyToClipboard &) const { return make<Actions::CopyToClipboard>(); }
    Result operator()(const ActionItem::OpenWindow &) const { return make<Actions::OpenWindow>(); }
    Result operator()(const ActionItem::CloseOpenedWindow &) const {
        return make<Actions::CloseOpenedWindow>();
    }
    Result operator()(const ActionItem::NavigateToSlide &) const { return make<Actions::NavigateToSlide>(); }
    Result operator()(const ActionItem::UpdateVariable &) const { return make<Actions::UpdateVariable>(); }
    template <class Other>
    Result operator()(const Other &) const {
        return make<Actions::Unavailable>();
    }

private:
    template <class Action>
    [[nodiscard]] Result make() const {
        return std::make_shared<Action>(item, context);
    }
};

} // namespace

std::shared_ptr<Dispatchable> dispatchable(std::shared_ptr<const ActionItem> item,
                                           const std::shared_ptr<const ActionContext> &context) {
    const Maker maker{std::move(item), context};
    return std::visit(maker, maker.item->value);
}

} // namespace velmar
