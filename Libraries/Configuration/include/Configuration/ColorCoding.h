#pragma once

#include <Configuration/ColorItem.h>
#include <Configuration/Decodable.h>

namespace velmar {

template <>
struct Decodable<ColorItem::Specification> {
    static ColorItem::Specification decode(const Decoding &decoding);
    static std::optional<PropertyList> encode(const ColorItem::Specification &value) {
        return PropertyList(value.text());
    }
    /// Returns the form with padded components, as an administrator writes it. encode() doesn't pad them.
    static PropertyList asWritten(const ColorItem::Specification &value);
    static std::string plistType() { return "string (#RRGGBB)"; }
    static ValueDescription describe(Descriptions & /*items*/) {
        return ValueDescription::text("colour, #RRGGBB or #RRGGBBAA", "#([0-9A-Fa-f]{6}|[0-9A-Fa-f]{8})");
    }
};

} // namespace velmar
