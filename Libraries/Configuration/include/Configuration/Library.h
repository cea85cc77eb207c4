#pragma once

namespace velmar {

template <class T>
class Book;
struct ColorItem;
struct FontItem;

/// The books of the file whose references are being settled. It owns nothing: the books belong to the
/// configuration that is being made, so that one that fails replaces nothing.
struct Library {
    const Book<FontItem> *fontStyles = nullptr;
    const Book<ColorItem> *colorStyles = nullptr;
};

} // namespace velmar
