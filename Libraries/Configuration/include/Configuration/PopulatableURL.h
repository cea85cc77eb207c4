#pragma once

#include <Configuration/PopulatableValue.h>
#include <Foundation/URL.h>

namespace velmar {

template <>
struct IsPopulatable<URL> : std::true_type {};

/// Returns a URL with placeholders after the plugins, which receive its text. Returns any other URL, and one
/// for which their result isn't a URL, unchanged.
[[nodiscard]] URL plugged(const URL &url);
[[nodiscard]] inline std::optional<URL> plugged(const std::optional<URL> &url) {
    return url ? std::optional(plugged(*url)) : std::nullopt;
}

} // namespace velmar
