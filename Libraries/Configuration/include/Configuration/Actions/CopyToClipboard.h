#pragma once

#include <Configuration/ActionItemProtocol.h>

#include <string>
#include <string_view>

namespace velmar::ActionItems {

struct CopyToClipboard {
    static constexpr std::string_view typeName = "ActionItem.CopyToClipboard";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::copyToClipboard;

    ActionItemProtocol common;
    KeyWrapper<std::string> _text{"Text", required};
    KeyWrapper<bool> _log{true, "Log", optional};
};

} // namespace velmar::ActionItems
