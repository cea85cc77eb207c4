#pragma once

#include <map>
#include <string>
#include <utility>

namespace velmar {

/// Named models; a dictionary of items in the file. BookCoding.h contains the coding and the inheritance.
template <class T>
class Book {
public:
    using Model = T;
    using ModelStorage = std::map<std::string, T>;

    Book() = default;
    explicit Book(ModelStorage models) : models_(std::move(models)) {}

    [[nodiscard]] const ModelStorage &models() const { return models_; }
    [[nodiscard]] bool areModelsResolved() const { return areModelsResolved_; }

    /// Applies the parents of all models. Idempotent. Throws BookError, which names the model by its key in
    /// the book.
    void resolve();

    /// Applies the parent of an item outside the book. The book must be resolved. Throws BookError.
    void applyParent(T &item) const;

private:
    static std::string nameOf(const T &model);
    template <class Self>
    static auto &parentOf(Self &book, const T &model);
    static void applyResolved(T &model, const T &parent);
    void applyChain(T &first);

    ModelStorage models_;
    bool areModelsResolved_ = false;
};

} // namespace velmar
