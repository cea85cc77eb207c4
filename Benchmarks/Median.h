#pragma once

#include <algorithm>
#include <vector>

/// The middle one of some measurements, at least one.
inline double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}
