#pragma once

#include <Configuration/BodyItem.h>
#include <Configuration/Decodable.h>

namespace velmar {

/// Texts, truth values, whole numbers, numbers, arrays and dictionaries, tried in this order; a number has
/// the kind that the file gives it, so that a 1.0 is sent as one.
template <>
struct Decodable<BodyItem> {
    static BodyItem decode(const Decoding &decoding);
    static std::optional<PropertyList> encode(const BodyItem &body);
    static std::string plistType() { return "string, boolean, number, array or dictionary"; }
    static ValueDescription describe(Descriptions &items);
};

} // namespace velmar
