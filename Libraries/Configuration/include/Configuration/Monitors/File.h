#pragma once

#include <Configuration/Monitors/MonitorItemProtocol.h>

#include <string>
#include <string_view>

namespace velmar::MonitorItems {

/// A file whose presence is monitored.
struct File {
    static constexpr std::string_view typeName = "MonitorItem.File";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::file;

    MonitorItemProtocol common;
    KeyWrapper<std::string> _path{"Path", required};
    KeyWrapper<bool> _isMandatory{false, "IsMandatory", optional};
};

} // namespace velmar::MonitorItems
