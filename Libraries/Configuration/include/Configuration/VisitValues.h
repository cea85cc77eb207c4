#pragma once

// Included by ItemCoding.h: the operation of CodableKey that visits the values of a key.

#include <Configuration/Decodable.h>
#include <Configuration/VisitedValue.h>

#include <cstddef>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace velmar {

/// An item whose coding can visit the values within it.
template <class T>
concept VisitableItem = (KeysCodableItem<T> || TaggedItem<T>)&&requires(const T &item,
                                                                        const ValuePlace &place,
                                                                        ValueVisitor &visitor) {
    Decodable<T>::visitWithin(item, place, visitor);
};

namespace detail {

template <class T>
inline constexpr bool isList = false;
template <class T>
inline constexpr bool isList<std::vector<T>> = true;

template <class T>
inline constexpr bool isDictionary = false;
template <class T>
inline constexpr bool isDictionary<std::map<std::string, T>> = true;

} // namespace detail

/// Visits the value at `place`, then every value within it: the elements of a list, the entries of a
/// dictionary or book, the alternative of a variant, and the values of an item's keys. The property list
/// limits the depth of the recursion.
template <class T>
void visitValues(const T &value, const ValuePlace &place, ValueVisitor &visitor) {
    if constexpr (requires { value.has_value(); }) {
        visitValues(*value, place, visitor); // A key that is given has a value.
    } else if constexpr (requires { value.models(); }) {
        visitValues(value.models(), place, visitor);
    } else {
        visitor.visit(VisitedValue(value, place));
        if constexpr (detail::isList<T>) {
            for (std::size_t index = 0; index < value.size(); ++index) {
                const CodingPath path(place.path, index);
                visitValues(value[index], {place.value.elements()[index], path}, visitor);
            }
        } else if constexpr (detail::isDictionary<T>) {
            for (const auto &entry : place.value.entries()) {
                const CodingPath path(place.path, entry.key.text());
                visitValues(value.at(std::string(entry.key.text())), {entry.value, path}, visitor);
            }
        } else if constexpr (VisitableItem<T>) {
            Decodable<T>::visitWithin(value, place, visitor);
        } else if constexpr (requires { value.value.valueless_by_exception(); }) {
            std::visit([&](const auto &held) { visitValues(held, place, visitor); }, value.value);
        }
    }
}

} // namespace velmar
