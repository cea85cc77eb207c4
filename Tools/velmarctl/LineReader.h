#pragma once

#include <cstddef>
#include <istream>
#include <string>
#include <vector>

namespace velmar {

/// Reads a stream line by line as it arrives. Its memory is bounded by the maximum line length.
class LineReader {
public:
    /// The stream must outlive the reader.
    LineReader(std::istream &in, std::size_t longestLine);

    /// Reads the next line. Returns false at the end of the stream; `line` and `isTooLong` are then
    /// meaningless.
    [[nodiscard]] bool next();

    /// The line without its line feed; empty if it is too long.
    [[nodiscard]] const std::string &line() const { return line_; }
    /// Whether the line was skipped because it exceeds the maximum length.
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
