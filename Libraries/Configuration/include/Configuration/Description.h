#pragma once

#include <Configuration/ClosedRange.h>
#include <Configuration/Requirement.h>
#include <Foundation/PropertyList.h>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmar {

/// The values that a key of the file accepts.
struct ValueDescription {
    enum class Kind {
        boolean,
        integer,
        real,
        text,
        enumeration, ///< One of `rawStrings`.
        list,        ///< Elements as described in `parts`.
        dictionary,  ///< Any key, values as described in `parts`.
        item,        ///< The item described under `name`.
        anyOf,       ///< One of `parts`.
    };

    Kind kind = Kind::text;
    std::string name;    ///< Type name of an item, or content of a text such as "URL"; empty for any text.
    std::string pattern; ///< Regular expression for the whole text; empty for none.
    std::vector<std::string> rawStrings;
    std::vector<ValueDescription> parts;

    static ValueDescription text(std::string holds = {}, std::string pattern = {}) {
        return {Kind::text, std::move(holds), std::move(pattern), {}, {}};
    }
    static ValueDescription item(std::string_view typeName) {
        return {Kind::item, std::string(typeName), {}, {}, {}};
    }
    static ValueDescription of(Kind kind, std::vector<ValueDescription> parts = {}) {
        return {kind, {}, {}, {}, std::move(parts)};
    }
};

/// The declaration of a key of an item.
struct KeyDescription {
    std::string_view name;
    ValueDescription value;
    std::optional<PropertyList> defaultValue; ///< Absent if an absent key has no value.
    Requirement requirement;
    std::optional<ClosedRange> range;
};

/// The declaration of an item: its keys, its kinds if it is of several kinds, or the value that it wraps.
struct ItemDescription {
    std::vector<KeyDescription> keys; ///< In the order of declaration.

    std::string_view typeKey; ///< The key that selects the kind; empty for an item of one kind.
    std::vector<std::pair<std::string, std::string>> kinds; ///< Value of `typeKey`, type name.

    std::optional<ValueDescription> value;
};

/// The items of the file by type name. Each is described once, even if several items refer to it.
class Descriptions {
public:
    /// Adds an empty description and returns it, or returns nullptr if the item has one. The pointer stays
    /// valid as long as this object.
    ItemDescription *add(std::string_view typeName) {
        const auto [place, isNew] = items_.try_emplace(std::string(typeName));
        if (isNew) {
            order_.push_back(place->first);
        }
        return isNew ? &place->second : nullptr;
    }

    [[nodiscard]] const std::map<std::string, ItemDescription> &items() const { return items_; }
    /// Returns the type names in the order of add(): each before the items that it is the first to refer to.
    [[nodiscard]] const std::vector<std::string> &order() const { return order_; }

private:
    std::map<std::string, ItemDescription> items_;
    std::vector<std::string> order_;
};

} // namespace velmar
