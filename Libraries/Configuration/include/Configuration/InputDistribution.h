#pragma once

#include <Configuration/ConfigurationEnum.h>

namespace velmar::ComponentItems::Inputs {

/// Distribution of the width of an input between its label and its field.
enum class Distribution { fit, center };

constexpr auto casesOf(Distribution) {
    return std::to_array<EnumCase<Distribution>>(
        {{Distribution::fit, "Fit"}, {Distribution::center, "Center"}});
}

} // namespace velmar::ComponentItems::Inputs
