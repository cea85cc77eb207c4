#pragma once

#include <algorithm>
#include <vector>

/// Returns the median of the measurements, for an even number the upper one. `values` must not be empty.
inline double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}
