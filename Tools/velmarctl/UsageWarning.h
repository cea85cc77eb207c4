#pragma once

#include <cstdint>
#include <string>

namespace velmar {

/// Something in an admitted file that can hardly be meant.
struct UsageWarning {
    std::string keyPath;
    std::uint32_t offset = 0; ///< As PropertyListValue::offset().
    std::string message;
};

} // namespace velmar
