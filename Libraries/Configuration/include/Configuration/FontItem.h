#pragma once

#include <Configuration/ConfigurationEnum.h>
#include <Configuration/InheritableKeyWrapper.h>
#include <Configuration/TextAlignment.h>

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace velmar {

struct ColorItem;

/// The font, colour and alignment of a text. Can be a model of the book "FontStyles".
struct FontItem {
    static constexpr std::string_view typeName = "FontItem";

    using TextAlignment = velmar::TextAlignment;

    enum class SystemFontWeight { heavy, black, bold, semibold, medium, regular, thin, light, ultralight };
    friend constexpr auto casesOf(SystemFontWeight) {
        return std::to_array<EnumCase<SystemFontWeight>>({{SystemFontWeight::heavy, "Heavy"},
                                                          {SystemFontWeight::black, "Black"},
                                                          {SystemFontWeight::bold, "Bold"},
                                                          {SystemFontWeight::semibold, "Semibold"},
                                                          {SystemFontWeight::medium, "Medium"},
                                                          {SystemFontWeight::regular, "Regular"},
                                                          {SystemFontWeight::thin, "Thin"},
                                                          {SystemFontWeight::light, "Light"},
                                                          {SystemFontWeight::ultralight, "Ultralight"}});
    }

    KeyWrapper<std::optional<std::string>> _parentModelName{"Style", optional};
    bool isParentStyleApplied = false;
    std::optional<std::string> modelName;
    KeyWrapper<std::optional<TextAlignment>> _textAlignment{"TextAlignment", optional};
    KeyWrapper<std::optional<double>> _size{"Size", optional}; ///< In points.
    InheritableKeyWrapper<std::optional<ColorItem>> _color{"Color", optional, &Library::colorStyles};
    KeyWrapper<std::optional<std::string>> _name{"Name",
                                                 optional}; ///< Font family; absent: the system's font.
    KeyWrapper<std::optional<SystemFontWeight>> _systemFontWeight{"SystemFontWeight", optional};
};

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
