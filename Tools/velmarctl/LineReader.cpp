#include <LineReader.h>

namespace velmar {

namespace {

constexpr std::size_t blockSize = std::size_t{64} << 10U;

} // namespace

LineReader::LineReader(std::istream &in, std::size_t longestLine)
    : in_(in), longestLine_(longestLine), block_(blockSize) {}

bool LineReader::next() {
    line_.clear();
    isTooLong_ = false;
    bool hasRead = false;
    while (true) {
        in_.getline(block_.data(), static_cast<std::streamsize>(block_.size()));
        const auto count = static_cast<std::size_t>(in_.gcount());
        hasRead = hasRead || count > 0;
        if (in_.eof() || in_.bad()) {
            append(count);
            return hasRead;
        }
        if (!in_.fail()) {
            append(count - 1); // The count includes the line feed.
            return true;
        }
        in_.clear(); // The block is full before the end of the line.
        append(count);
    }
}

void LineReader::append(std::size_t count) {
    isTooLong_ = isTooLong_ || count > longestLine_ - line_.size();
    if (isTooLong_) {
        line_.clear();
    } else {
        line_.append(block_.data(), count);
    }
}

} // namespace velmar
