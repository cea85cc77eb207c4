#pragma once

#include <vector>

namespace velmar {

template <class T>
class Book;
struct APIRequestItem;
struct ColorItem;
struct FontItem;
struct SlideItem;

/// The targets of references, for settling those of one file. Owns nothing: the targets belong to the
/// configuration under construction, so that a failure replaces nothing.
struct Library {
    const Book<FontItem> *fontStyles = nullptr;
    const Book<ColorItem> *colorStyles = nullptr;
    const Book<APIRequestItem> *apiRequests = nullptr;
    const std::vector<SlideItem> *slides = nullptr;
};

} // namespace velmar
