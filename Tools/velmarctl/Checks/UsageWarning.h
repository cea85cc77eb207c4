#pragma once

#include <Configuration/VisitedValue.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace velmar {

/// A warning about an admitted file.
struct UsageWarning {
    std::string keyPath;
    std::uint32_t offset = 0; ///< As PropertyListValue::offset().
    std::string message;
};

/// Returns a warning of the whole value at a place.
[[nodiscard]] UsageWarning warningAt(const ValuePlace &place, std::string message);

/// Returns a warning of a key that the file gives for the item at a place.
[[nodiscard]] UsageWarning warningAt(const ValuePlace &item, std::string_view key, std::string message);

} // namespace velmar
