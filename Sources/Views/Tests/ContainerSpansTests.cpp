#include <Views/Content/Slides/ContainerSpans.h>

#include <gtest/gtest.h>

#include <vector>

namespace velmar {
namespace {

using Composition = SlideItem::ContainersComposition;

Composition ratios(const std::vector<double> &values) {
    Composition::Ratio composition;
    for (const double value : values) {
        composition.shares.push_back({ContainerItem(), value});
    }
    return {std::move(composition)};
}

TEST(ContainerSpans, FillTheSlideWithoutGaps) {
    struct Case {
        Composition composition;
        std::size_t count;
        int width;
        std::vector<ContainerSpan> spans;
    };
    const Composition equal{Composition::NotSpecified{}};
    for (const Case &row :
         {Case{equal, 1, 800, {{0, 800}}}, Case{equal, 3, 800, {{0, 267}, {267, 266}, {533, 267}}},
          Case{equal, 0, 800, {}}, Case{ratios({2.0 / 3, 1.0 / 3}), 2, 900, {{0, 600}, {600, 300}}},
          Case{ratios({0.7, 0.2, 0.1}), 3, 1001, {{0, 701}, {701, 200}, {901, 100}}},
          Case{ratios({0, 1}), 2, 640, {{0, 0}, {0, 640}}},
          Case{ratios({0.5, 0.5}), 2, 0, {{0, 0}, {0, 0}}}}) {
        EXPECT_EQ(containerSpans(row.composition, row.count, row.width), row.spans)
            << row.count << " " << row.width;
    }
}

} // namespace
} // namespace velmar
