#pragma once

#include <Configuration/ComponentItemProtocol.h>

#include <optional>
#include <string_view>

namespace velmar::ComponentItems {

struct Spacer {
    static constexpr std::string_view typeName = "ComponentItem.Spacer";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::spacer;

    ComponentItemProtocol common;
    KeyWrapper<std::optional<double>> _height{"Height", optional}; ///< In points; absent: all that remains.
};

} // namespace velmar::ComponentItems
