#pragma once

#include <Configuration/ActionItemProtocol.h>

#include <string_view>

namespace velmar::ActionItems {

struct SaveInputs {
    static constexpr std::string_view typeName = "ActionItem.SaveInputs";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::saveInput;

    ActionItemProtocol common;
};

} // namespace velmar::ActionItems
