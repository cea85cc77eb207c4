#pragma once

#include <algorithm>
#include <span>
#include <type_traits>
#include <variant>

namespace velmar {

/// Returns the type of an item that is one of several, such as ActionItem: the `typeIdentifier` of the
/// alternative in its `value`.
template <class Item>
[[nodiscard]] typename Item::TypeIdentifier typeIdentifierOf(const Item &item) {
    return std::visit(
        [](const auto &alternative) { return std::remove_cvref_t<decltype(alternative)>::typeIdentifier; },
        item.value);
}

/// The factories for the types of an item, from explicit lists, which must outlive the table. A type is in
/// exactly one of the two lists. `Factory` is a pointer to a function.
template <class Item, class Factory>
struct FactoryTable {
    using Type = typename Item::TypeIdentifier;

    struct Registration {
        Type type;
        Factory make;
    };

    std::span<const Registration> registrations;
    std::span<const Type> notBuilt; ///< The types that the program cannot make yet.
    Factory makeUnregistered;       ///< Stands in for the missing factories.

    /// Never nullptr.
    [[nodiscard]] Factory factoryFor(const Item &item) const {
        const auto found = std::ranges::find(registrations, typeIdentifierOf(item), &Registration::type);
        return found == registrations.end() ? makeUnregistered : found->make;
    }
};

} // namespace velmar
