#pragma once

#include <algorithm>
#include <span>
#include <type_traits>
#include <variant>

namespace velmar {

/// Returns the type of a variant item, such as ActionItem: the `typeIdentifier` of the alternative in its
/// `value`.
template <class Item>
[[nodiscard]] typename Item::TypeIdentifier typeIdentifierOf(const Item &item) {
    return std::visit(
        [](const auto &alternative) { return std::remove_cvref_t<decltype(alternative)>::typeIdentifier; },
        item.value);
}

/// The factories for the types of an item. The lists are not owned and must outlive the table. Each type is
/// in exactly one of the two lists. `Factory` is a function pointer.
template <class Item, class Factory>
struct FactoryTable {
    using Type = typename Item::TypeIdentifier;

    struct Registration {
        Type type;
        Factory make;
    };

    std::span<const Registration> registrations;
    std::span<const Type> notBuilt; ///< The types that are not supported yet.
    Factory makeUnregistered;       ///< Factory for the types without a registration.

    /// Returns the factory for the type of the item, never nullptr.
    [[nodiscard]] Factory factoryFor(const Item &item) const {
        const auto found = std::ranges::find(registrations, typeIdentifierOf(item), &Registration::type);
        return found == registrations.end() ? makeUnregistered : found->make;
    }
};

} // namespace velmar
