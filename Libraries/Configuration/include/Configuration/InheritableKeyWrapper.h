#pragma once

#include <Configuration/KeyWrapper.h>
#include <Configuration/Library.h>

#include <optional>

namespace velmar {

/// Holds a key whose value is an item or the name of a model in a book. The parent is applied when the
/// references of the file are settled; the value doesn't change afterwards. InheritableKeyCoding.h contains
/// the coding.
template <class T>
class InheritableKeyWrapper;

template <class Model>
class InheritableKeyWrapper<std::optional<Model>> : public KeyWrapper<std::optional<Model>> {
    using Base = KeyWrapper<std::optional<Model>>;

public:
    using BookOfLibrary = const Book<Model> *Library::*;

    InheritableKeyWrapper(ConfigCodingKey name, const Requirement &requirement, BookOfLibrary book)
        : Base(name, requirement), book_(book) {}

    [[nodiscard]] BookOfLibrary book() const { return book_; }

private:
    BookOfLibrary book_;
};

} // namespace velmar
