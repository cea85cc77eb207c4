#pragma once

#include <Configuration/ColorItem.h>
#include <Configuration/ComponentItem.h>
#include <Configuration/InheritableKeyWrapper.h>
#include <Configuration/MarginsItem.h>

#include <vector>

namespace velmar {

/// A column of components, one under the other.
struct ContainerItem {
    static constexpr std::string_view typeName = "ContainerItem";

    KeyWrapper<std::vector<ComponentItem>> _components{"Components", required};
    KeyWrapper<MarginsItem> _margins{"Margins", optional};
    KeyWrapper<bool> _isLarge{false, "IsLarge", exclude({"WidthRatio"})};
    KeyWrapper<std::optional<ComponentItem::Input::Distribution>> _inputComponentDistribution{
        "InputComponentsDistribution", optional};
    KeyWrapper<std::optional<double>> _inputComponentPercentWidth{"InputComponentPercentWidth", optional};
    InheritableKeyWrapper<std::optional<ColorItem>> _borderColor{"BorderColor", optional,
                                                                 &Library::colorStyles};
    KeyWrapper<std::optional<double>> _widthRatio{std::nullopt, "WidthRatio", exclude({"IsLarge"}), {0, 1}};
};

} // namespace velmar
