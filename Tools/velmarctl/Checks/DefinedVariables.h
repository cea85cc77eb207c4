#pragma once

#include <Configuration/Configuration.h>

#include <string>

namespace velmar {

/// Returns whether the program, General.Variables or a key of the file defines the variable.
[[nodiscard]] inline bool isDefinedVariable(const Configuration &configuration, const std::string &name) {
    return configuration._general.rawValue()._variables.rawValue().models().contains(name) ||
           configuration.declaredVariables.contains(name) ||
           enumValue<GeneralSection::Placeholders>(name).has_value();
}

} // namespace velmar
