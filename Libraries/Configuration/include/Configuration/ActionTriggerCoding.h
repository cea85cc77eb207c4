#pragma once

#include <Configuration/ActionTrigger.h>
#include <Configuration/Decodable.h>

namespace velmar {

template <>
struct Decodable<ActionTrigger> {
    static ActionTrigger decode(const Decoding &decoding);
    static std::optional<PropertyList> encode(const ActionTrigger &trigger) {
        return PropertyList(trigger.text());
    }
    static std::string plistType();
    static ValueDescription describe(Descriptions &items);
};

} // namespace velmar
