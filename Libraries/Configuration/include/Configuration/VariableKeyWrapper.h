#pragma once

#include <Configuration/KeyWrapper.h>

#include <string>
#include <vector>

namespace velmar {

/// What a key that holds the name of a variable declares: that name, bare. The key is read by rawValue(),
/// because for a reader of `${NAME}` the plugins would put the variable's value in its place.
[[nodiscard]] inline std::vector<std::string> nameOfVariable(const std::string &text) {
    return {std::string(bareVariableName(text))};
}

/// Holds a key that has to do with variables: a text for people with references to them, or a key that brings
/// variables into being. What a key declares is defined for the whole file, wherever it stands.
template <class T>
class VariableKeyWrapper : public KeyWrapper<T> {
    using Base = KeyWrapper<T>;

public:
    /// The names that a value declares.
    using DeclaredNames = std::vector<std::string> (*)(const T &value);

    VariableKeyWrapper(ConfigCodingKey name, Requirement requirement, DeclaredNames declaredNames = nullptr)
        : Base(name, std::move(requirement)), declaredNames_(declaredNames) {}
    VariableKeyWrapper(T defaultValue, ConfigCodingKey name, Requirement requirement,
                       DeclaredNames declaredNames = nullptr)
        : Base(std::move(defaultValue), name, std::move(requirement)), declaredNames_(declaredNames) {}

    void decode(const PropertyList::Dictionary &item, const CodingPath &itemPath, DecodingContext &context) {
        Base::decode(item, itemPath, context);
        if (declaredNames_ != nullptr && Base::wasGivenValueWhileDecoding()) {
            for (std::string &name : declaredNames_(Base::rawValue())) {
                context.declareVariable(std::move(name));
            }
        }
    }

private:
    DeclaredNames declaredNames_; ///< Null for a key that declares nothing.
};

} // namespace velmar
