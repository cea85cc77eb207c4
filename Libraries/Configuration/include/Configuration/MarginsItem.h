#pragma once

#include <Configuration/KeyWrapper.h>

#include <optional>
#include <string_view>

namespace velmar {

/// Margins in points. The reader of an absent side chooses its size.
struct MarginsItem {
    static constexpr std::string_view typeName = "MarginsItem";

    KeyWrapper<std::optional<double>> _top{"Top", optional};
    KeyWrapper<std::optional<double>> _right{"Right", optional};
    KeyWrapper<std::optional<double>> _bottom{"Bottom", optional};
    KeyWrapper<std::optional<double>> _left{"Left", optional};
};

} // namespace velmar
