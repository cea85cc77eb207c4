#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmar {

/// The place of a value in the file: the keys and indexes from the root to the value. A linked list of parts
/// on the stack of the decoding, so that a path is cheap until its text is built. A part must not outlive its
/// parent or the text of its key.
class CodingPath {
public:
    CodingPath() = default; ///< The root.
    CodingPath(const CodingPath &parent, std::string_view key) : parent_(&parent), key_(key) {}
    CodingPath(const CodingPath &parent, std::size_t index)
        : parent_(&parent), index_(index), isIndex_(true) {}

    /// Returns the parts joined by ".", with indexes as numbers from 0; empty for the root.
    [[nodiscard]] std::string text() const;

    /// Returns the length of text() in bytes.
    [[nodiscard]] std::size_t length() const;

    /// Returns the innermost key, even for an element of its array; empty for the root.
    [[nodiscard]] std::string_view lastKey() const;

private:
    void appendTo(std::string &text) const;

    const CodingPath *parent_ = nullptr;
    std::string_view key_;
    std::size_t index_ = 0;
    bool isIndex_ = false;
};

} // namespace velmar
