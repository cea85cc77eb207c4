#include <Configuration/ActionItem.h>

#include <Configuration/ItemCoding.h>
#include <expressions/Expression.h>

namespace velmar {

ActionItems::TypeIdentifier typeIdentifierOf(const ActionItem &action) {
    return std::visit([](const auto &alternative) { return alternative.typeIdentifier; }, action.value);
}

const std::optional<Expression> &ActionItem::condition() const {
    return std::visit(
        [](const auto &action) -> decltype(auto) { return action.common._condition.rawValue(); }, value);
}

const std::optional<Expression> &conditionOf(const ActionItem &action) {
    return action.condition();
}

template <class Item>
const Item *itemOf(const ActionItem &action) {
    return std::get_if<Item>(&action.value);
}

template const ActionItems::AsleepComputer *itemOf(const ActionItem &);
template const ActionItems::CloseOpenedWindow *itemOf(const ActionItem &);
template const ActionItems::CopyToClipboard *itemOf(const ActionItem &);
template const ActionItems::DisplayAlert *itemOf(const ActionItem &);
template const ActionItems::DisplayNotification *itemOf(const ActionItem &);
template const ActionItems::ExecuteCommand *itemOf(const ActionItem &);
template const ActionItems::ExecuteJamfPolicy *itemOf(const ActionItem &);
template const ActionItems::ExecuteScript *itemOf(const ActionItem &);
template const ActionItems::Log *itemOf(const ActionItem &);
template const ActionItems::LogoutUser *itemOf(const ActionItem &);
template const ActionItems::NavigateToSlide *itemOf(const ActionItem &);
template const ActionItems::OpenWindow *itemOf(const ActionItem &);
template const ActionItems::PlaySound *itemOf(const ActionItem &);
template const ActionItems::RestartComputer *itemOf(const ActionItem &);
template const ActionItems::SaveInputs *itemOf(const ActionItem &);
template const ActionItems::SendRequest *itemOf(const ActionItem &);
template const ActionItems::ShutdownComputer *itemOf(const ActionItem &);
template const ActionItems::TerminateApp *itemOf(const ActionItem &);
template const ActionItems::UpdateVariable *itemOf(const ActionItem &);

template struct TaggedItemCoding<ActionItem>;

} // namespace velmar
