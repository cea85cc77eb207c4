#pragma once

#include <Foundation/LocalizedError.h>

#include <cstddef>
#include <limits>
#include <string_view>

namespace velmar {

/// Why bytes are no property list, with the place where that shows, or why a value cannot be written.
class PropertyListError final : public LocalizedError {
public:
    static constexpr std::size_t noOffset = std::numeric_limits<std::size_t>::max();

    /// `reason` is a sentence without its capital and full stop. `offset` is in bytes from the start,
    /// noOffset when writing; `line` counts from 1 and is 0 where there are no lines. The description is
    /// whole, as in "The property list is not valid at line 12: the element <foo> is not known."
    PropertyListError(std::string_view reason, std::size_t offset, std::size_t line);

    [[nodiscard]] std::size_t offset() const noexcept { return offset_; }
    [[nodiscard]] std::size_t line() const noexcept { return line_; }

private:
    std::size_t offset_;
    std::size_t line_;
};

} // namespace velmar
