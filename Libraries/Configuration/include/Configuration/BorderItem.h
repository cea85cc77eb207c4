#pragma once

#include <Configuration/ConfigurationEnum.h>
#include <Configuration/InheritableKeyWrapper.h>

#include <array>
#include <optional>
#include <string_view>

namespace velmar {

struct ColorItem;

/// A line above or below a component.
struct BorderItem {
    static constexpr std::string_view typeName = "BorderItem";

    enum class Edge { top, bottom };
    friend constexpr auto casesOf(Edge) {
        return std::to_array<EnumCase<Edge>>({{Edge::top, "Top"}, {Edge::bottom, "Bottom"}});
    }

    KeyWrapper<Edge> _edge{Edge::top, "Edge", required};
    InheritableKeyWrapper<std::optional<ColorItem>> _color{"Color", optional, &Library::colorStyles};
    KeyWrapper<double> _widthPercent{0.9, "WidthPercent", optional, {0, 1}}; ///< Fraction of the width.
    KeyWrapper<std::optional<double>> _height{"Height", optional};           ///< In points.
};

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
