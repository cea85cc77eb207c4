#pragma once

#include <Configuration/InheritableKeyWrapper.h>
#include <Configuration/InputDistribution.h>

#include <optional>
#include <string_view>
#include <vector>

namespace velmar {

struct ColorItem;
struct ComponentItem;
struct MarginsItem;

/// A column of components, one under the other.
struct ContainerItem {
    static constexpr std::string_view typeName = "ContainerItem";

    KeyWrapper<std::vector<ComponentItem>> _components{"Components", required};
    KeyWrapper<MarginsItem> _margins{"Margins", optional};
    KeyWrapper<bool> _isLarge{false, "IsLarge", exclude({"WidthRatio"})};
    KeyWrapper<std::optional<ComponentItems::Inputs::Distribution>> _inputComponentDistribution{
        "InputComponentsDistribution", optional};
    KeyWrapper<std::optional<double>> _inputComponentPercentWidth{"InputComponentPercentWidth", optional};
    InheritableKeyWrapper<std::optional<ColorItem>> _borderColor{"BorderColor", optional,
                                                                 &Library::colorStyles};
    KeyWrapper<std::optional<double>> _widthRatio{std::nullopt, "WidthRatio", exclude({"IsLarge"}), {0, 1}};
};

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
