#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace velmar {

/// Tells the line of a place in a text without keeping the text: one bit a byte and a running count, so that
/// it costs 13 percent of the text's size whatever its lines are like. Immutable after its making.
class LineIndex {
public:
    LineIndex() = default; ///< Of something without lines.
    explicit LineIndex(std::string_view text);

    /// The line of the byte at `offset`, counted from 1; an offset beyond the text is on its last line. 0 for
    /// something without lines.
    [[nodiscard]] std::size_t lineOf(std::size_t offset) const noexcept;

private:
    static constexpr std::size_t wordsPerBlock = 16;

    std::vector<std::uint64_t> lineFeeds_;   // Bit n of word w: byte 64 * w + n is a line feed.
    std::vector<std::uint32_t> linesBefore_; // One for each block of words.
    std::size_t size_ = 0;
    bool hasLines_ = false;
};

} // namespace velmar
