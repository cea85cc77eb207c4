#pragma once

#include <Configuration/KeyWrapper.h>

#include <string_view>

namespace velmar {

struct ContainerItem;

/// A container shown beside all slides.
struct SideContainerSection {
    static constexpr std::string_view typeName = "SideContainerSection";

    KeyWrapper<ContainerItem> _container{"Container", required};
    KeyWrapper<double> _width{250.0, "Width", optional}; ///< In points.
};

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
