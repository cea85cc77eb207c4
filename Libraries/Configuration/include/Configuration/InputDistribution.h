#pragma once

#include <Configuration/ConfigurationEnum.h>

namespace velmar::ComponentItems::Inputs {

/// How the label and the field of an input share its width.
enum class Distribution { fit, center };

constexpr auto casesOf(Distribution) {
    return std::to_array<EnumCase<Distribution>>(
        {{Distribution::fit, "Fit"}, {Distribution::center, "Center"}});
}

} // namespace velmar::ComponentItems::Inputs
