#pragma once

#include <Configuration/ColorItem.h>
#include <Configuration/InheritableKeyWrapper.h>

namespace velmar {

/// How a text looks; it can be a model of the book "FontStyles".
struct FontItem {
    static constexpr std::string_view typeName = "FontItem";

    enum class TextAlignment { left, center, right, justified, natural };
    friend constexpr auto casesOf(TextAlignment) {
        return std::to_array<EnumCase<TextAlignment>>({{TextAlignment::left, "Left"},
                                                       {TextAlignment::center, "Center"},
                                                       {TextAlignment::right, "Right"},
                                                       {TextAlignment::justified, "Justified"},
                                                       {TextAlignment::natural, "Natural"}});
    }

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
                                                 optional}; ///< A family; absent is the system's font.
    KeyWrapper<std::optional<SystemFontWeight>> _systemFontWeight{"SystemFontWeight", optional};
};

} // namespace velmar
