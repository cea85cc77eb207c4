#pragma once

#include <Configuration/ComponentItemProtocol.h>
#include <Configuration/PopulatableURL.h>

#include <string_view>

namespace velmar::ComponentItems {

struct Web {
    static constexpr std::string_view typeName = "ComponentItem.Web";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::web;

    ComponentItemProtocol common;
    KeyWrapper<URL> _url{URL::file("/"), "URL", required};
    KeyWrapper<bool> _isVerticalScrollBarHidden{false, "IsVerticalScrollBarHidden", optional};
    KeyWrapper<bool> _isHorizontalScrollBarHidden{true, "IsHorizontalScrollBarHidden", optional};
    KeyWrapper<bool> _isScrollDisabled{false, "IsScrollDisabled", optional};
};

} // namespace velmar::ComponentItems
