#pragma once

#include <Foundation/PropertyListDocument.h>

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <span>

namespace velmar {

/// What must hold for whatever a reader takes; anything else stops the program.
inline void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

inline std::optional<PropertyListDocument> readIfValid(std::span<const std::uint8_t> input) {
    try {
        return PropertyListDocument::read(std::as_bytes(input));
    } catch (const PropertyListError &error) {
        require(error.offset() <= input.size() && !error.errorDescription().empty());
        return std::nullopt;
    }
}

} // namespace velmar
