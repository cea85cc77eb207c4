#pragma once

#include <Configuration/BookCoding.h>
#include <Configuration/InheritableKeyWrapper.h>
#include <Configuration/KeyCoding.h>

#include <fmt/format.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace velmar {

template <class Model>
struct KeyCoding<InheritableKeyWrapper<std::optional<Model>>> : KeyCoding<KeyWrapper<std::optional<Model>>> {
    using Key = InheritableKeyWrapper<std::optional<Model>>;

    static void decode(Key &key, const PropertyListValue &value, const CodingPath &itemPath,
                       DecodingContext &context) {
        Base::decodeWith(key, value, itemPath, context, [&key](const Decoding &decoding) {
            const auto modelName = decoding.value.string();
            return modelName ? valueOfName(key, *modelName, decoding) : decodeItem(key, decoding);
        });
    }

    /// Encodes a reference given as a name in the same form.
    static void encode(const Key &key, PropertyList::Dictionary &item) {
        const std::optional<Model> &model = key.rawValue();
        if (model && Base::mustBeEncoded(key) && isNameOnly(*model)) {
            item.set(key.name().stringValue, PropertyList(*model->_parentModelName.rawValue()));
        } else {
            Base::encode(key, item);
        }
    }

    static KeyDescription describe(const Key &key, Descriptions &items) {
        KeyDescription description = Base::describe(key, items);
        description.value =
            ValueDescription::of(ValueDescription::Kind::anyOf,
                                 {ValueDescription::text("name of a model"), std::move(description.value)});
        return description;
    }

private:
    using Base = KeyCoding<KeyWrapper<std::optional<Model>>>;
    using typename Base::Node;

    /// Returns the item shared by all keys with this model name. Sharing is safe, since the item never
    /// changes once its parent is applied. Items with an `id` are not shared.
    static SharedValuePointer valueOfName(const Key &key, std::string_view modelName,
                                          const Decoding &decoding) {
        if constexpr (requires(Model model) { model.id; }) {
            return makeNamed(key, modelName, decoding);
        } else {
            SharedValuePointer &shared = decoding.context.valueOfName(Model::typeName, modelName);
            if (!shared) {
                shared = makeNamed(key, modelName, decoding);
            }
            return shared;
        }
    }

    static SharedValuePointer makeNamed(const Key &key, std::string_view modelName,
                                        const Decoding &decoding) {
        Model model = makeDefault<Model>();
        if constexpr (requires { model.id; }) {
            model.id = {};
        }
        model._parentModelName.set(std::string(modelName));
        const boost::intrusive_ptr<Node> node(new Node(std::move(model)));
        addReference(key, node, decoding);
        return node;
    }

    static SharedValuePointer decodeItem(const Key &key, const Decoding &decoding) {
        if (!decoding.value.isDictionary()) {
            throwNoItem(decoding,
                        fmt::format("string (name of a model) | {}", Decodable<Model>::plistType()));
        }
        const boost::intrusive_ptr<Node> node(
            new Node(InPlace{[&] { return Base::decodeValue(key, decoding); }}));
        if (node->value->_parentModelName.rawValue()) {
            addReference(key, node, decoding);
        }
        return node;
    }

    static void addReference(const Key &key, const boost::intrusive_ptr<Node> &node,
                             const Decoding &decoding) {
        decoding.context.addReference(decoding.value, [node, book = key.book()](const Library &library) {
            (library.*book)->applyParent(*node->value);
        });
    }

    /// True if the value was written as the name of a model rather than as a dictionary.
    static bool isNameOnly(const Model &model) {
        return model._parentModelName.rawValue() && !model._parentModelName.wasGivenValueWhileDecoding();
    }
};

} // namespace velmar
