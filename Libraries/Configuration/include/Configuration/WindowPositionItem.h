#pragma once

#include <Configuration/ConfigurationEnum.h>
#include <Configuration/KeyWrapper.h>

#include <array>
#include <string_view>

namespace velmar {

/// The position of a window on its screen. The padding, in points, applies at an edge and not on a centred
/// axis.
struct WindowPositionItem {
    static constexpr std::string_view typeName = "WindowPositionItem";

    enum class Horizontal { left, center, right };
    friend constexpr auto casesOf(Horizontal) {
        return std::to_array<EnumCase<Horizontal>>(
            {{Horizontal::left, "Left"}, {Horizontal::center, "Center"}, {Horizontal::right, "Right"}});
    }

    enum class Vertical { top, center, bottom };
    friend constexpr auto casesOf(Vertical) {
        return std::to_array<EnumCase<Vertical>>(
            {{Vertical::top, "Top"}, {Vertical::center, "Center"}, {Vertical::bottom, "Bottom"}});
    }

    KeyWrapper<Horizontal> _horizontal{Horizontal::center, "Horizontal", required};
    KeyWrapper<Vertical> _vertical{Vertical::center, "Vertical", required};
    KeyWrapper<double> _padding{20.0, "Padding", optional};
};

} // namespace velmar
