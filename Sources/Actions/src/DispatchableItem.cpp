#include <Actions/DispatchableItem.h>

#include <Actions/ExecutionActions.h>
#include <Actions/InteractionActions.h>

#include <array>
#include <utility>

namespace velmar {

namespace {

using ActionTable = FactoryTable<ActionItem, ActionFactory>;
using Type = ActionTable::Type;

template <class Runtime>
std::shared_ptr<Dispatchable> make(std::shared_ptr<const ActionContext> context,
                                   std::shared_ptr<const ActionItem> item) {
    return std::make_shared<Runtime>(std::move(item), std::move(context));
}

template <class Runtime>
constexpr ActionTable::Registration action{Runtime::ItemType::typeIdentifier, &make<Runtime>};

constexpr std::array registrations{
    action<Actions::Log>,
    action<Actions::DisplayAlert>,
    action<Actions::DisplayNotification>,
    action<Actions::PlaySound>,
    action<Actions::TerminateApp>,
    action<Actions::CopyToClipboard>,
    action<Actions::OpenWindow>,
    action<Actions::CloseOpenedWindow>,
    action<Actions::NavigateToSlide>,
    action<Actions::UpdateVariable>,
};

constexpr std::array notBuilt{
    Type::saveInput,        Type::sendRequest,       Type::executeCommand,
    Type::executeScript,    Type::executeJamfPolicy, Type::restartComputer,
    Type::shutdownComputer, Type::asleepComputer,    Type::logoutUser,
};

constexpr ActionTable table{registrations, notBuilt, &make<Actions::Unavailable>};

} // namespace

const ActionTable &actionTable() {
    return table;
}

std::shared_ptr<Dispatchable> dispatchable(std::shared_ptr<const ActionContext> context,
                                           std::shared_ptr<const ActionItem> item) {
    const ActionFactory make = table.factoryFor(*item);
    return make(std::move(context), std::move(item));
}

} // namespace velmar
