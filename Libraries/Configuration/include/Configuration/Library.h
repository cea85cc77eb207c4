#pragma once

#include <vector>

namespace velmar {

template <class T>
class Book;
struct APIRequestItem;
struct ColorItem;
struct FontItem;
struct SlideItem;

/// What references of the file whose references are being settled lead to. It owns nothing: all belongs to
/// the configuration that is being made, so that one that fails replaces nothing.
struct Library {
    const Book<FontItem> *fontStyles = nullptr;
    const Book<ColorItem> *colorStyles = nullptr;
    const Book<APIRequestItem> *apiRequests = nullptr;
    const std::vector<SlideItem> *slides = nullptr;
};

} // namespace velmar
