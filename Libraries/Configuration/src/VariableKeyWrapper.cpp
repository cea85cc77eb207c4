#include <Configuration/VariableKeyWrapper.h>

#include <Configuration/Populatable.h>

namespace velmar {

std::vector<std::string> nameOfVariable(const std::string &text) {
    return {std::string(bareVariableName(text))};
}

std::vector<std::string> nameOfVariable(const std::optional<std::string> &text) {
    return text ? nameOfVariable(*text) : std::vector<std::string>();
}

std::vector<std::string> namesOfVariables(const std::optional<std::map<std::string, std::string>> &values) {
    std::vector<std::string> names;
    for (const auto &[name, value] : values.value_or(std::map<std::string, std::string>())) {
        static_cast<void>(value);
        names.emplace_back(bareVariableName(name));
    }
    return names;
}

} // namespace velmar
