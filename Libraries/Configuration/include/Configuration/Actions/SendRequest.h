#pragma once

#include <Configuration/ActionItemProtocol.h>
#include <Configuration/InheritableKeyWrapper.h>

#include <optional>
#include <string_view>

namespace velmar {
struct APIRequestItem;
} // namespace velmar

namespace velmar::ActionItems {

struct SendRequest {
    static constexpr std::string_view typeName = "ActionItem.SendRequest";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::sendRequest;

    ActionItemProtocol common;
    InheritableKeyWrapper<std::optional<APIRequestItem>> _request{"Request", required, &Library::apiRequests};
};

} // namespace velmar::ActionItems
