#pragma once

#include <Configuration/ComponentItemProtocol.h>
#include <Configuration/PopulatableURL.h>

#include <string_view>

namespace velmar::ComponentItems {

struct Video {
    static constexpr std::string_view typeName = "ComponentItem.Video";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::video;

    ComponentItemProtocol common;
    KeyWrapper<URL> _url{URL::file("/"), "URL", required};
    KeyWrapper<bool> _hideControls{false, "HideControls", optional};
    KeyWrapper<bool> _automaticStart{false, "AutomaticStart", optional};
    KeyWrapper<bool> _repeat{false, "Repeat", optional};
    KeyWrapper<bool> _isMuted{false, "IsMuted", optional};
};

} // namespace velmar::ComponentItems
