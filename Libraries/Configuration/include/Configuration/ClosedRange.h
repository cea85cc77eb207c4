#pragma once

namespace velmar {

/// An interval that includes both bounds.
struct ClosedRange {
    double lower = 0;
    double upper = 0;
    [[nodiscard]] bool contains(double value) const { return value >= lower && value <= upper; }
};

} // namespace velmar
