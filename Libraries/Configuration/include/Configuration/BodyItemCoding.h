#pragma once

#include <Configuration/BodyItem.h>
#include <Configuration/Decodable.h>

namespace velmar {

/// Accepts a string, boolean, integer, real, array or dictionary, tried in this order. A number keeps its
/// type in the file, so that 1.0 stays a real; an integer above the range of std::int64_t becomes a real.
template <>
struct Decodable<BodyItem> {
    static BodyItem decode(const Decoding &decoding);
    static std::optional<PropertyList> encode(const BodyItem &body);
    static std::string plistType() { return "string, boolean, number, array or dictionary"; }
    static ValueDescription describe(Descriptions &items);
};

} // namespace velmar
