#pragma once

#include <Configuration/ConfigurationEnum.h>

#include <array>

namespace velmar {

enum class TextAlignment { left, center, right, justified, natural };

constexpr auto casesOf(TextAlignment) {
    return std::to_array<EnumCase<TextAlignment>>({{TextAlignment::left, "Left"},
                                                   {TextAlignment::center, "Center"},
                                                   {TextAlignment::right, "Right"},
                                                   {TextAlignment::justified, "Justified"},
                                                   {TextAlignment::natural, "Natural"}});
}

} // namespace velmar
