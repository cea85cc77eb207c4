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

/// What a value of the file may be.
struct ValueDescription {
    enum class Kind {
        boolean,
        integer,
        real,
        text,
        enumeration, ///< One of `rawStrings`.
        list,        ///< Of the one in `parts`.
        dictionary,  ///< From any text to the one in `parts`.
        item,        ///< The item that is described under `name`.
        anyOf,       ///< One of `parts`.
    };

    Kind kind = Kind::text;
    std::string name; ///< Of an item its type's; of a text what it holds, such as "URL", empty for any text.
    std::string pattern; ///< That a text must match from end to end; empty for none.
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

/// What an item says of one of its keys.
struct KeyDescription {
    std::string_view name;
    ValueDescription value;
    std::optional<PropertyList> defaultValue; ///< Absent where an absent key leaves no value.
    Requirement requirement;
    std::optional<ClosedRange> range;
};

/// An item: its keys, or, of one of several kinds, the kinds, or the value that it stands for.
struct ItemDescription {
    std::vector<KeyDescription> keys; ///< In the order of declaration.

    std::string_view typeKey; ///< The key that tells the kinds apart; empty for an item of one kind.
    std::vector<std::pair<std::string, std::string>> kinds; ///< Value of that key and name of the type.

    std::optional<ValueDescription> value;
};

/// The items of the file by the names of their types, each once, however they refer to each other.
class Descriptions {
public:
    /// The place of an item that has none yet, or null. The place stays where it is.
    ItemDescription *add(std::string_view typeName) {
        const auto [place, isNew] = items_.try_emplace(std::string(typeName));
        if (isNew) {
            order_.push_back(place->first);
        }
        return isNew ? &place->second : nullptr;
    }

    [[nodiscard]] const std::map<std::string, ItemDescription> &items() const { return items_; }
    /// The names, each before those that it is the first to refer to.
    [[nodiscard]] const std::vector<std::string> &order() const { return order_; }

private:
    std::map<std::string, ItemDescription> items_;
    std::vector<std::string> order_;
};

} // namespace velmar
