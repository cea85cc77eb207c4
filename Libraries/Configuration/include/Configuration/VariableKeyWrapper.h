#pragma once

#include <Configuration/KeyWrapper.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace velmar {

/// What a key that holds the name of a variable declares: that name, bare. The key is read by rawValue(),
/// because for a reader of `${NAME}` the plugins would put the variable's value in its place.
[[nodiscard]] inline std::vector<std::string> nameOfVariable(const std::string &text) {
    return {std::string(bareVariableName(text))};
}
[[nodiscard]] inline std::vector<std::string> nameOfVariable(const std::optional<std::string> &text) {
    return text ? nameOfVariable(*text) : std::vector<std::string>();
}
/// What a dictionary by names of variables declares: its keys.
[[nodiscard]] inline std::vector<std::string>
namesOfVariables(const std::optional<std::map<std::string, std::string>> &values) {
    std::vector<std::string> names;
    for (const auto &[name, value] : values.value_or(std::map<std::string, std::string>())) {
        static_cast<void>(value);
        names.emplace_back(bareVariableName(name));
    }
    return names;
}

/// Which form of a text tells the names that it declares.
enum class DeclaringForm {
    given,     ///< As it stands in the file.
    populated, ///< With the values that its variables start with.
};

/// Holds a key that has to do with variables: a text for people with references to them, or a key that brings
/// variables into being. What a key declares is defined for the whole file, wherever it stands.
template <class T>
class VariableKeyWrapper : public KeyWrapper<T> {
    using Base = KeyWrapper<T>;

public:
    /// The names that a value declares.
    using DeclaredNames = std::vector<std::string> (*)(const T &value);

    VariableKeyWrapper(ConfigCodingKey name, Requirement requirement, DeclaredNames declaredNames = nullptr,
                       DeclaringForm form = DeclaringForm::given)
        : Base(name, std::move(requirement)), declaredNames_(declaredNames), form_(form) {}
    VariableKeyWrapper(T defaultValue, ConfigCodingKey name, Requirement requirement,
                       DeclaredNames declaredNames = nullptr)
        : Base(std::move(defaultValue), name, std::move(requirement)), declaredNames_(declaredNames) {}

    void decode(const PropertyListValue &value, const CodingPath &itemPath, DecodingContext &context) {
        Base::decode(value, itemPath, context);
        if (declaredNames_ == nullptr) {
            return;
        }
        if constexpr (std::is_same_v<T, std::string>) {
            if (form_ == DeclaringForm::populated) {
                context.declareByPopulatedText(*value.string(), declaredNames_);
                return;
            }
        }
        for (std::string &name : declaredNames_(Base::rawValue())) {
            context.declareVariable(std::move(name));
        }
    }

private:
    DeclaredNames declaredNames_; ///< Null for a key that declares nothing.
    DeclaringForm form_ = DeclaringForm::given;
};

} // namespace velmar
