#include <Views/Content/Slides/ContainerSpans.h>

#include <cmath>

namespace velmar {

std::vector<ContainerSpan> containerSpans(const SlideItem::ContainersComposition &composition,
                                          std::size_t count, int width) {
    const auto *ratio = std::get_if<SlideItem::ContainersComposition::Ratio>(&composition.value);
    std::vector<ContainerSpan> spans;
    double share = 0;
    int start = 0;
    for (std::size_t index = 0; index < count; ++index) {
        share += ratio != nullptr ? ratio->shares.at(index).ratio : 1.0 / static_cast<double>(count);
        // Rounds the ends, not the widths, so that rounding errors don't accumulate.
        const int end = static_cast<int>(std::lround(share * width));
        spans.push_back({start, end - start});
        start = end;
    }
    return spans;
}

} // namespace velmar
