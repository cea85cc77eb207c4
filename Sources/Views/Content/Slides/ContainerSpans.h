#pragma once

#include <Configuration/SlideItem.h>

#include <vector>

namespace velmar {

/// Horizontal extent of a container, in points.
struct ContainerSpan {
    int start = 0;
    int width = 0;
    bool operator==(const ContainerSpan &) const = default;
};

/// Divides the width of a slide among its `count` containers without gaps or overlaps. Shares with the sum 1
/// fill the slide.
[[nodiscard]] std::vector<ContainerSpan> containerSpans(const SlideItem::ContainersComposition &composition,
                                                        std::size_t count, int width);

} // namespace velmar
