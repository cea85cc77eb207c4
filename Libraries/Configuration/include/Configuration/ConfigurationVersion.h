#pragma once

#include <string_view>

namespace velmar::ConfigurationVersion {

/// The version of the model. A file does not name one, and decoding does not depend on it.
inline constexpr std::string_view version = "Velmar-2.1.0";

} // namespace velmar::ConfigurationVersion
