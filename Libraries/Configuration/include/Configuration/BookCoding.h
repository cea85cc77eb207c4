#pragma once

#include <Configuration/Book.h>
#include <Configuration/BookError.h>
#include <Configuration/Decodable.h>

#include <concepts>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// An item that can be a model of a book and inherits the keys that it doesn't give from a parent model. Its
/// members `_parentModelName` (the key that names the parent, such as "Style"), `modelName` (the name in its
/// book, absent for other items) and `isParentStyleApplied` describe the inheritance.
template <class T>
concept Inheritable = requires(T &item) {
    { item._parentModelName.rawValue() } -> std::convertible_to<std::optional<std::string>>;
    { item.modelName } -> std::convertible_to<std::optional<std::string>>;
    { item.isParentStyleApplied } -> std::convertible_to<bool>;
    { T::typeName } -> std::convertible_to<std::string_view>;
};

// Defined by reflection in ItemCodingTemplates.h.
template <class T>
T makeDefault();
template <class T>
void inheritKeys(T &model, const T &parent);
template <class T>
std::string modelText(const T &model);

template <class T>
void Book<T>::resolve() {
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

template <class T>
void Book<T>::applyParent(T &item) const {
    if (!item.isParentStyleApplied && item._parentModelName.rawValue()) {
        applyResolved(item, parentOf(*this, item));
    }
}

template <class T>
std::string Book<T>::nameOf(const T &model) {
    return model.modelName.value_or("Undefined");
}

template <class T>
template <class Self>
auto &Book<T>::parentOf(Self &book, const T &model) {
    const std::string &name = *model._parentModelName.rawValue();
    const auto parent = book.models_.find(name);
    if (parent == book.models_.end()) {
        throw BookError(BookErrors::UndefinedParentModel{nameOf(model), name});
    }
    return parent->second;
}

template <class T>
void Book<T>::applyResolved(T &model, const T &parent) {
    inheritKeys(model, parent);
    if (!model.isParentStyleApplied) {
        throw BookError(BookErrors::ParentModelNotApplied{std::string(T::typeName)});
    }
}

/// Collects the ancestors up to the first without a parent left to apply, then applies parents from there
/// down. Iterative, because the file decides the length of a chain.
template <class T>
void Book<T>::applyChain(T &first) {
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

template <class T>
struct Decodable<Book<T>> {
    using Storage = Decodable<std::map<std::string, T>>;
    static Book<T> decode(const Decoding &decoding) { return Book<T>(Storage::decode(decoding)); }
    static std::optional<PropertyList> encode(const Book<T> &book) { return Storage::encode(book.models()); }
    static std::string plistType() { return Storage::plistType(); }
    static ValueDescription describe(Descriptions &items) { return Storage::describe(items); }
};

} // namespace velmar
