#pragma once

#include <Configuration/Decodable.h>
#include <Foundation/LocalizedError.h>

#include <fmt/format.h>

#include <concepts>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// An item that can be a model of a book and can take what it does not give from a parent model. Its first
/// members are `_parentModelName` (the key "Style"), `modelName` (its name in its book, absent for an item
/// that stands elsewhere) and `isParentStyleApplied`.
template <class T>
concept Inheritable = requires(T &item) {
    { item._parentModelName.rawValue() } -> std::convertible_to<std::optional<std::string>>;
    { item.modelName } -> std::convertible_to<std::optional<std::string>>;
    { item.isParentStyleApplied } -> std::convertible_to<bool>;
    { T::typeName } -> std::convertible_to<std::string_view>;
};

// By reflection, in ItemCoding.h.
template <class T>
T makeDefault();
template <class T>
void inheritKeys(T &model, const T &parent);
template <class T>
std::string modelText(const T &model);

/// References of models to each other that lead nowhere.
namespace BookErrors {

struct OwnDefinition {
    std::string name; ///< "Undefined" for a model without a name, here and below.
    std::string value;
    [[nodiscard]] std::string errorDescription() const {
        return fmt::format("Variable '{}' ({}) used within its own initial value", name, value);
    }
};
struct CircularReference {
    std::string type;
    std::string name;
    [[nodiscard]] std::string errorDescription() const {
        return fmt::format("Circular reference for {}s involving {}", type, name);
    }
};
struct UndefinedParentModel {
    std::string name;
    std::string parent;
    [[nodiscard]] std::string errorDescription() const {
        return fmt::format("{} has an undefined parent {}", name, parent);
    }
};
struct ParentModelNotApplied {
    std::string type;
    [[nodiscard]] std::string errorDescription() const {
        return fmt::format(
            "{} model doesn't change its isParentModelApplied property when applying parent model", type);
    }
};

} // namespace BookErrors

class BookError final
    : public ErrorOfCases<BookErrors::OwnDefinition, BookErrors::CircularReference,
                          BookErrors::UndefinedParentModel, BookErrors::ParentModelNotApplied> {
public:
    using ErrorOfCases::ErrorOfCases;
};

/// Named models. In the file a dictionary of items.
template <class T>
class Book {
public:
    using Model = T;
    using ModelStorage = std::map<std::string, T>;

    Book() = default;
    explicit Book(ModelStorage models) : models_(std::move(models)) {}

    [[nodiscard]] const ModelStorage &models() const { return models_; }
    [[nodiscard]] bool areModelsResolved() const { return areModelsResolved_; }

    /// Applies the parents of all models, once. Throws BookError, which names the model by its key in the
    /// book.
    void resolve() {
        static_assert(Inheritable<T>);
        if (areModelsResolved_) {
            return;
        }
        for (auto &[name, model] : models_) {
            model.modelName = name;
        }
        for (auto &[name, model] : models_) {
            applyChain(model);
        }
        areModelsResolved_ = true;
    }

    /// Applies the parent of an item that stands outside of the book, which is resolved already. Throws
    /// BookError.
    void applyParent(T &item) const {
        if (!item.isParentStyleApplied && item._parentModelName.rawValue()) {
            applyResolved(item, parentOf(*this, item));
        }
    }

private:
    static std::string nameOf(const T &model) { return model.modelName.value_or("Undefined"); }

    template <class Self>
    static auto &parentOf(Self &book, const T &model) {
        const std::string &name = *model._parentModelName.rawValue();
        const auto parent = book.models_.find(name);
        if (parent == book.models_.end()) {
            throw BookError(BookErrors::UndefinedParentModel{nameOf(model), name});
        }
        return parent->second;
    }

    static void applyResolved(T &model, const T &parent) {
        inheritKeys(model, parent);
        if (!model.isParentStyleApplied) {
            throw BookError(BookErrors::ParentModelNotApplied{std::string(T::typeName)});
        }
    }

    /// Climbs to the first ancestor without an open parent, then comes down again; no recursion, because the
    /// file decides how long a chain is.
    void applyChain(T &first) {
        std::vector<T *> chain;
        std::set<std::string_view> names;
        for (T *model = &first; !model->isParentStyleApplied && model->_parentModelName.rawValue();) {
            const std::string &parentName = *model->_parentModelName.rawValue();
            if (model->modelName == parentName) {
                throw BookError(BookErrors::OwnDefinition{nameOf(*model), modelText(*model)});
            }
            chain.push_back(model);
            names.insert(*model->modelName);
            if (names.contains(parentName)) {
                throw BookError(BookErrors::CircularReference{std::string(T::typeName), nameOf(*model)});
            }
            model = &parentOf(*this, *model);
        }
        for (auto model = chain.rbegin(); model != chain.rend(); ++model) {
            applyResolved(**model, parentOf(*this, **model));
        }
    }

    ModelStorage models_;
    bool areModelsResolved_ = false;
};

template <class T>
struct Decodable<Book<T>> {
    using Storage = Decodable<std::map<std::string, T>>;
    static Book<T> decode(const Decoding &decoding) { return Book<T>(Storage::decode(decoding)); }
    static std::optional<PropertyList> encode(const Book<T> &book) { return Storage::encode(book.models()); }
    static std::string plistType() { return Storage::plistType(); }
    static ValueDescription describe(Descriptions &items) { return Storage::describe(items); }
};

} // namespace velmar
