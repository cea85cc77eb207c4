#pragma once

#include <Configuration/Decodable.h>
#include <Configuration/Plugin.h>
#include <Configuration/Populatable.h>
#include <Foundation/URL.h>

namespace velmar {

template <>
struct Decodable<URL> {
    static URL decode(const Decoding &decoding);
    static std::optional<PropertyList> encode(const URL &value) { return PropertyList(value.text()); }
    static std::string plistType() { return "string (URL)"; }
    static ValueDescription describe(Descriptions & /*items*/) { return ValueDescription::text("URL"); }
};

template <>
struct IsPopulatable<URL> : std::true_type {};

/// The plugins see the text; what they make of it counts where it is a URL.
[[nodiscard]] URL plugged(const URL &url);
[[nodiscard]] inline std::optional<URL> plugged(const std::optional<URL> &url) {
    return url ? std::optional(plugged(*url)) : std::nullopt;
}

} // namespace velmar
