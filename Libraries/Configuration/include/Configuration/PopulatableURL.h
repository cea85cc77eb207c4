#pragma once

#include <Configuration/PopulatableValue.h>
#include <Foundation/URL.h>

namespace velmar {

template <>
struct IsPopulatable<URL> : std::true_type {};

/// The plugins see the text of the URL. Their result is ignored where it is no URL.
[[nodiscard]] URL plugged(const URL &url);
[[nodiscard]] inline std::optional<URL> plugged(const std::optional<URL> &url) {
    return url ? std::optional(plugged(*url)) : std::nullopt;
}

} // namespace velmar
