#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmar {

/// The place of a value in the file: the keys and indexes that lead to it from the root. A list of parts on
/// the stack of the decoding, each pointing to the one before it, so that a path costs nothing until somebody
/// asks for its text. A part must not outlive its parent, nor the text of its key.
class CodingPath {
public:
    CodingPath() = default; ///< The root.
    CodingPath(const CodingPath &parent, std::string_view key) : parent_(&parent), key_(key) {}
    CodingPath(const CodingPath &parent, std::size_t index)
        : parent_(&parent), index_(index), isIndex_(true) {}

    /// The parts joined by ".", indexes as numbers from 0; empty for the root.
    [[nodiscard]] std::string text() const;

    /// The length of the text.
    [[nodiscard]] std::size_t length() const;

    /// The innermost key, also from within its array; empty for the root.
    [[nodiscard]] std::string_view lastKey() const;

private:
    void appendTo(std::string &text) const;

    const CodingPath *parent_ = nullptr;
    std::string_view key_;
    std::size_t index_ = 0;
    bool isIndex_ = false;
};

} // namespace velmar
