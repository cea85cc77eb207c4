#pragma once

#include <Configuration/ConfigurationEnum.h>

#include <array>

namespace velmar {

/// A side of an item on screen.
enum class EdgeItem { top, right, bottom, left };

constexpr auto casesOf(EdgeItem) {
    return std::to_array<EnumCase<EdgeItem>>({{EdgeItem::top, "Top"},
                                              {EdgeItem::right, "Right"},
                                              {EdgeItem::bottom, "Bottom"},
                                              {EdgeItem::left, "Left"}});
}

} // namespace velmar
