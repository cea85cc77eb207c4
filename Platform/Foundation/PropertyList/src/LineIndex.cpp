#include <Foundation/LineIndex.h>

#include <algorithm>
#include <bit>

namespace velmar {

static constexpr std::size_t bitsPerWord = 64;

LineIndex::LineIndex(std::string_view text)
    : lineFeeds_(text.size() / bitsPerWord + 1),
      linesBefore_(lineFeeds_.size() / wordsPerBlock + 1),
      size_(text.size()),
      hasLines_(true) {
    std::uint32_t lines = 0;
    for (std::size_t word = 0; word < lineFeeds_.size(); ++word) {
        if (word % wordsPerBlock == 0) {
            linesBefore_[word / wordsPerBlock] = lines;
        }
        const std::string_view part = text.substr(word * bitsPerWord, bitsPerWord);
        std::uint64_t bits = 0;
        for (std::size_t feed = part.find('\n'); feed != part.npos; feed = part.find('\n', feed + 1)) {
            bits |= std::uint64_t{1} << feed;
        }
        lineFeeds_[word] = bits;
        lines += static_cast<std::uint32_t>(std::popcount(bits));
    }
}

std::size_t LineIndex::lineOf(std::size_t offset) const noexcept {
    if (!hasLines_) {
        return 0;
    }
    const std::size_t place = std::min(offset, size_);
    const std::size_t last = place / bitsPerWord;
    std::size_t line = 1 + linesBefore_[last / wordsPerBlock];
    for (std::size_t word = last - last % wordsPerBlock; word < last; ++word) {
        line += static_cast<std::size_t>(std::popcount(lineFeeds_[word]));
    }
    const std::uint64_t before = (std::uint64_t{1} << (place % bitsPerWord)) - 1;
    return line + static_cast<std::size_t>(std::popcount(lineFeeds_[last] & before));
}

} // namespace velmar
