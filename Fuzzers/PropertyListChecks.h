#pragma once

#include <Foundation/PropertyListDocument.h>

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <span>

namespace velmar {

/// Aborts, which the fuzzer reports, if the condition doesn't hold.
inline void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// Returns the document, or nothing if the reader refuses the input. `input` must outlive the document.
inline std::optional<PropertyListDocument> readIfValid(std::span<const std::uint8_t> input) {
    try {
        return PropertyListDocument::read(std::as_bytes(input));
    } catch (const PropertyListError &error) {
        require(error.offset() <= input.size() && !error.errorDescription().empty());
        return std::nullopt;
    }
}

} // namespace velmar
