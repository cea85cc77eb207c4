#pragma once

#include <Configuration/ComponentItemProtocol.h>
#include <Configuration/InheritableKeyWrapper.h>
#include <Configuration/VariableKeyWrapper.h>

#include <optional>
#include <string>
#include <string_view>

namespace velmar {
struct FontItem;
} // namespace velmar

namespace velmar::ComponentItems {

struct Text {
    static constexpr std::string_view typeName = "ComponentItem.Text";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::text;

    ComponentItemProtocol common;
    VariableKeyWrapper<std::string> _text{"Text", required};
    InheritableKeyWrapper<std::optional<FontItem>> _font{"TextFontConfiguration", optional,
                                                         &Library::fontStyles};
};

} // namespace velmar::ComponentItems
