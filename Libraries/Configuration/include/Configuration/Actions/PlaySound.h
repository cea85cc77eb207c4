#pragma once

#include <Configuration/ActionItemProtocol.h>

#include <string>
#include <string_view>

namespace velmar::ActionItems {

struct PlaySound {
    static constexpr std::string_view typeName = "ActionItem.PlaySound";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::playSound;

    ActionItemProtocol common;
    KeyWrapper<std::string> _soundNameOrFilePath{"SoundNameOrFilePath", required};
};

} // namespace velmar::ActionItems
