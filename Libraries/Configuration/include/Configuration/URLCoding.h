#pragma once

#include <Configuration/Decodable.h>
#include <Configuration/PopulatableURL.h>

namespace velmar {

template <>
struct Decodable<URL> {
    static URL decode(const Decoding &decoding);
    static std::optional<PropertyList> encode(const URL &value) { return PropertyList(value.text()); }
    static std::string plistType() { return "string (URL)"; }
    static ValueDescription describe(Descriptions & /*items*/) { return ValueDescription::text("URL"); }
};

} // namespace velmar
