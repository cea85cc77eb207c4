#pragma once

#include <cstddef>
#include <istream>
#include <string>
#include <vector>

namespace velmar {

/// Reads a stream line by line as it comes, and never holds more of it than the longest line allowed.
class LineReader {
public:
    /// The stream must outlive the reader.
    LineReader(std::istream &in, std::size_t longestLine);

    /// Reads the next line; false at the end of the stream, and then the line is not to be used.
    [[nodiscard]] bool next();

    /// Without its line feed; empty if it is too long.
    [[nodiscard]] const std::string &line() const { return line_; }
    /// Whether the line was passed over because it has more bytes than allowed.
    [[nodiscard]] bool isTooLong() const { return isTooLong_; }

private:
    void append(std::size_t count);

    std::istream &in_;
    std::size_t longestLine_;
    std::vector<char> block_;
    std::string line_;
    bool isTooLong_ = false;
};

} // namespace velmar
