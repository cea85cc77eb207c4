#pragma once

#include <Configuration/Book.h>
#include <Configuration/KeyWrapper.h>
#include <Configuration/Library.h>

#include <optional>
#include <string>

namespace velmar {

/// Holds a key that takes an item or the name of a model of a book. Its parent is applied when the references
/// of the file are settled; from then on reading writes nothing.
template <class T>
class InheritableKeyWrapper;

template <class Model>
class InheritableKeyWrapper<std::optional<Model>> : public KeyWrapper<std::optional<Model>> {
    using Base = KeyWrapper<std::optional<Model>>;

public:
    using BookOfLibrary = const Book<Model> *Library::*;

    InheritableKeyWrapper(ConfigCodingKey name, Requirement requirement, BookOfLibrary book)
        : Base(name, std::move(requirement)), book_(book) {}

    void decode(const PropertyList::Dictionary &item, const CodingPath &itemPath, DecodingContext &context) {
        Base::decodeWith(item, itemPath, context, [this](const Decoding &decoding) {
            if (const std::string *modelName = decoding.value.string()) {
                Model model = makeDefault<Model>();
                model._parentModelName.set(*modelName);
                return std::optional<Model>(std::move(model));
            }
            return Base::decodeValue(decoding);
        });
        const auto &held = Base::node();
        if (held && held->value && held->value->_parentModelName.rawValue()) {
            // Models of books are moved about until the end; the value behind the holder stays where it is.
            context.addReference(
                CodingPath(itemPath, Base::name().stringValue).text(),
                item.find(Base::name().stringValue)->offset(),
                [held, book = book_](const Library &library) { (library.*book)->applyParent(*held->value); });
        }
    }

    /// A reference by name alone is written as it was given.
    void encode(PropertyList::Dictionary &item) const {
        const std::optional<Model> &model = Base::rawValue();
        if (model && Base::mustBeEncoded() && isNameOnly(*model)) {
            item.set(std::string(Base::name().stringValue),
                     PropertyList(*model->_parentModelName.rawValue()));
        } else {
            Base::encode(item);
        }
    }

    [[nodiscard]] BookOfLibrary book() const { return book_; }

private:
    /// The name came from the text form: an item in its own dictionary gives it as the key "Style".
    static bool isNameOnly(const Model &model) {
        return model._parentModelName.rawValue() && !model._parentModelName.wasGivenValueWhileDecoding();
    }

    BookOfLibrary book_;
};

} // namespace velmar
