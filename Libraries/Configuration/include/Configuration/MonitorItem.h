#pragma once

#include <Configuration/Monitors/App.h>
#include <Configuration/Monitors/File.h>

#include <optional>
#include <string_view>
#include <variant>

namespace velmar {

/// A monitor of an application or a file.
struct MonitorItem {
    static constexpr std::string_view typeName = "MonitorItem";
    static constexpr std::string_view typeKey = "Type";
    /// A missing type and a wrong type are reported in the same sentence.
    static constexpr bool tellsTypeFaultsAlike = true;

    using TypeIdentifier = MonitorItems::TypeIdentifier;
    using MonitorItemProtocol = MonitorItems::MonitorItemProtocol;
    using App = MonitorItems::App;
    using File = MonitorItems::File;

    std::variant<App, File> value;

    [[nodiscard]] const std::optional<Expression> &condition() const;
};

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
