#pragma once

#include <Configuration/KeyWrapper.h>

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velmar {

/// Returns the bare name of the variable that a key names. Such a key must be read by rawValue(), because the
/// plugins would replace `${NAME}` by the value of the variable.
[[nodiscard]] std::vector<std::string> nameOfVariable(const std::string &text);
[[nodiscard]] std::vector<std::string> nameOfVariable(const std::optional<std::string> &text);
/// Returns the bare keys of a dictionary whose keys are names of variables.
[[nodiscard]] std::vector<std::string>
namesOfVariables(const std::optional<std::map<std::string, std::string>> &values);

/// Whether declared names are taken from the raw text or after substitution.
enum class DeclaringForm {
    given,     ///< The text of the file.
    populated, ///< The text with the initial values of its variables.
};

/// Holds a key related to variables: a text with references to them, or a key that declares variables. A
/// declared variable is defined for the whole file, wherever the key stands.
template <class T>
class VariableKeyWrapper : public KeyWrapper<T> {
    using Base = KeyWrapper<T>;

public:
    /// Returns the names that a value declares.
    using DeclaredNames = std::vector<std::string> (*)(const T &value);

    VariableKeyWrapper(ConfigCodingKey name, const Requirement &requirement, DeclaredNames names = nullptr,
                       DeclaringForm form = DeclaringForm::given)
        : Base(name, requirement), declaredNames_(names), form_(form) {}
    VariableKeyWrapper(T defaultValue, ConfigCodingKey name, const Requirement &requirement,
                       DeclaredNames names = nullptr)
        : Base(std::move(defaultValue), name, requirement), declaredNames_(names) {}

    /// Returns nullptr for a key that declares nothing.
    [[nodiscard]] DeclaredNames declaredNames() const { return declaredNames_; }
    [[nodiscard]] DeclaringForm declaringForm() const { return form_; }

private:
    DeclaredNames declaredNames_;
    DeclaringForm form_ = DeclaringForm::given;
};

} // namespace velmar
