#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace velmar {

/// Maps offsets in a text to line numbers without keeping the text. Takes one bit per byte and a running
/// count, about 13 percent of the text's size. Immutable and therefore thread-safe.
class LineIndex {
public:
    LineIndex() = default; ///< An index of data without lines.
    explicit LineIndex(std::string_view text);

    /// Returns the line of the byte at `offset`, counted from 1. Returns the last line for an offset beyond
    /// the text, and 0 for data without lines.
    [[nodiscard]] std::size_t lineOf(std::size_t offset) const noexcept;

private:
    static constexpr std::size_t wordsPerBlock = 16;

    std::vector<std::uint64_t> lineFeeds_;   // Bit n of word w is set if byte 64 * w + n is a line feed.
    std::vector<std::uint32_t> linesBefore_; // One count per block of words.
    std::size_t size_ = 0;
    bool hasLines_ = false;
};

} // namespace velmar
