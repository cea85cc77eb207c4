#include <Models/Actions/DispatchableItem.h>

#include <Models/Actions/ExecutionActions.h>
#include <Models/Actions/InteractionActions.h>

#include <type_traits>
#include <utility>

namespace velmar {

namespace {

template <class Item>
struct RuntimeAction {
    using Type = Actions::Unavailable;
};
template <>
struct RuntimeAction<ActionItem::Log> {
    using Type = Actions::Log;
};
template <>
struct RuntimeAction<ActionItem::DisplayAlert> {
    using Type = Actions::DisplayAlert;
};
template <>
struct RuntimeAction<ActionItem::PlaySound> {
    using Type = Actions::PlaySound;
};
template <>
struct RuntimeAction<ActionItem::TerminateApp> {
    using Type = Actions::TerminateApp;
};
template <>
struct RuntimeAction<ActionItem::CopyToClipboard> {
    using Type = Actions::CopyToClipboard;
};
template <>
struct RuntimeAction<ActionItem::NavigateToSlide> {
    using Type = Actions::NavigateToSlide;
};
template <>
struct RuntimeAction<ActionItem::UpdateVariable> {
    using Type = Actions::UpdateVariable;
};

} // namespace

std::shared_ptr<Dispatchable> dispatchable(std::shared_ptr<const ActionItem> item,
                                           const std::shared_ptr<const ActionSurroundings> &surroundings) {
    const ActionItem &held = *item;
    return std::visit(
        [&](const auto &action) -> std::shared_ptr<Dispatchable> {
            using Type = typename RuntimeAction<std::remove_cvref_t<decltype(action)>>::Type;
            return std::make_shared<Type>(std::move(item), surroundings);
        },
        held.value);
}

} // namespace velmar
