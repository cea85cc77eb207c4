#pragma once

#include <Configuration/Book.h>
#include <Configuration/KeyWrapper.h>
#include <Configuration/Library.h>

#include <optional>
#include <string>
#include <string_view>

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

    void decode(const PropertyListValue &value, const CodingPath &itemPath, DecodingContext &context) {
        Base::decodeWith(value, itemPath, context, [this](const Decoding &decoding) {
            const auto modelName = decoding.value.string();
            return modelName ? valueOfName(*modelName, decoding) : decodeItem(decoding);
        });
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

    [[nodiscard]] KeyDescription describe(Descriptions &items) const {
        KeyDescription description = Base::describe(items);
        description.value =
            ValueDescription::of(ValueDescription::Kind::anyOf,
                                 {ValueDescription::text("name of a model"), std::move(description.value)});
        return description;
    }

private:
    using typename Base::Held;
    using typename Base::Node;

    /// The item that all keys with this name share, for it never changes once its parent is applied; a fresh
    /// one where items have an identity.
    Held valueOfName(std::string_view modelName, const Decoding &decoding) const {
        if constexpr (requires(Model model) { model.id; }) {
            return makeNamed(modelName, decoding);
        } else {
            std::shared_ptr<void> &shared = decoding.context.valueOfName(Model::typeName, modelName);
            if (!shared) {
                shared = std::make_shared<Held>(makeNamed(modelName, decoding));
            }
            return *std::static_pointer_cast<Held>(shared);
        }
    }

    Held makeNamed(std::string_view modelName, const Decoding &decoding) const {
        Model model = makeDefault<Model>();
        if constexpr (requires { model.id; }) {
            model.id = {};
        }
        model._parentModelName.set(std::string(modelName));
        Held held(new Node(std::move(model)));
        addReference(held, decoding);
        return held;
    }

    Held decodeItem(const Decoding &decoding) const {
        if (!decoding.value.isDictionary()) {
            throwNoItem(decoding,
                        fmt::format("string (name of a model) | {}", Decodable<Model>::plistType()));
        }
        const Held held(new Node(InPlace{[&] { return Base::decodeValue(decoding); }}));
        if (held->value->_parentModelName.rawValue()) {
            addReference(held, decoding);
        }
        return held;
    }

    void addReference(const Held &held, const Decoding &decoding) const {
        decoding.context.addReference(decoding.value, [held, book = book_](const Library &library) {
            (library.*book)->applyParent(*held->value);
        });
    }

    /// The name came from the text form: an item in its own dictionary gives it as the key "Style".
    static bool isNameOnly(const Model &model) {
        return model._parentModelName.rawValue() && !model._parentModelName.wasGivenValueWhileDecoding();
    }

    BookOfLibrary book_;
};

} // namespace velmar
