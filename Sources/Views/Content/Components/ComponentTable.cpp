#include <Views/Content/Components/ComponentTable.h>

#include <Base/Services.h>
#include <Views/Content/Components/Button.h>
#include <Views/Content/Components/Spacer.h>
#include <Views/Content/Components/Text.h>

#include <fmt/core.h>
#include <logger/Logger.h>

#include <array>
#include <utility>
#include <variant>

namespace velmar {

namespace {

using Type = ComponentTable::Type;

/// Factory of views that need only the main queue.
template <class View>
ComponentView *make(const ComponentItem &item, const Services &services, QWidget *parent) {
    return new View(std::get<typename View::ItemType>(item.value), services.mainQueue, parent);
}

template <class View>
constexpr ComponentTable::Registration component{View::ItemType::typeIdentifier, &make<View>};

ComponentView *makeUnregistered(const ComponentItem &item, const Services &services, QWidget *parent) {
    Logger::warning([&] {
        return fmt::format("Components of the type '{}' cannot be shown yet",
                           rawString(typeIdentifierOf(item)));
    });
    return makeEmptyView(services, parent);
}

constexpr std::array registrations{
    component<ComponentViews::Text>,
    component<ComponentViews::Button>,
    component<ComponentViews::Spacer>,
};

constexpr std::array notBuilt{Type::image, Type::web, Type::appMonitor, Type::pdf, Type::video, Type::input};

constexpr ComponentTable table{registrations, notBuilt, &makeUnregistered};

} // namespace

const ComponentTable &componentTable() {
    return table;
}

ComponentView *makeEmptyView(const Services &services, QWidget *parent) {
    ComponentItem::Spacer nothing;
    nothing._height.set(0);
    return new ComponentViews::Spacer(std::move(nothing), services.mainQueue, parent);
}

} // namespace velmar
