#pragma once

#include <Configuration/KeyWrapper.h>

#include <string_view>

namespace velmar {

/// A size in points.
struct SizeItem {
    static constexpr std::string_view typeName = "SizeItem";

    KeyWrapper<double> _height{0.0, "Height", required};
    KeyWrapper<double> _width{0.0, "Width", required};

    [[nodiscard]] static SizeItem of(double height, double width) {
        SizeItem size;
        size._height.set(height);
        size._width.set(width);
        return size;
    }
};

} // namespace velmar
