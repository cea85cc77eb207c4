#pragma once

#include <Foundation/LocalizedError.h>

#include <cstddef>
#include <limits>
#include <string_view>

namespace velmar {

/// An error in the bytes of a property list, with its position, or a failure to write a value.
class PropertyListError final : public LocalizedError {
public:
    static constexpr std::size_t noOffset = std::numeric_limits<std::size_t>::max();

    /// `reason` is a sentence without capital letter and full stop. `offset` is in bytes from the start, or
    /// noOffset for an error of writing. `line` counts from 1 and is 0 for data without lines. The
    /// description is a complete sentence: "The property list is not valid at line 12: the element <foo> is
    /// not known."
    PropertyListError(std::string_view reason, std::size_t offset, std::size_t line);

    [[nodiscard]] std::size_t offset() const noexcept { return offset_; }
    [[nodiscard]] std::size_t line() const noexcept { return line_; }

private:
    std::size_t offset_;
    std::size_t line_;
};

} // namespace velmar
