#pragma once

#include <Configuration/SlideItem.h>

#include <vector>

namespace velmar {

/// A stretch of a row, in points.
struct ContainerSpan {
    int start = 0;
    int width = 0;
    bool operator==(const ContainerSpan &) const = default;
};

/// Shares the width of a slide among its `count` containers, without a gap or an overlap; shares that add up
/// to one end at the slide's end.
[[nodiscard]] std::vector<ContainerSpan> containerSpans(const SlideItem::ContainersComposition &composition,
                                                        std::size_t count, int width);

} // namespace velmar
