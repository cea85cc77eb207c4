#pragma once

#include <Configuration/KeyWrapper.h>

#include <optional>
#include <string_view>

namespace velmar {

/// Empty space around something, in points; an absent side is the reader's to choose.
struct MarginsItem {
    static constexpr std::string_view typeName = "MarginsItem";

    KeyWrapper<std::optional<double>> _top{"Top", optional};
    KeyWrapper<std::optional<double>> _right{"Right", optional};
    KeyWrapper<std::optional<double>> _bottom{"Bottom", optional};
    KeyWrapper<std::optional<double>> _left{"Left", optional};
};

} // namespace velmar
