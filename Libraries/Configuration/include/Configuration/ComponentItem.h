#pragma once

#include <Configuration/Components/AppMonitor.h>
#include <Configuration/Components/Button.h>
#include <Configuration/Components/Image.h>
#include <Configuration/Components/Input.h>
#include <Configuration/Components/PDF.h>
#include <Configuration/Components/Spacer.h>
#include <Configuration/Components/Text.h>
#include <Configuration/Components/Video.h>
#include <Configuration/Components/Web.h>

#include <string_view>
#include <variant>

namespace velmar {

/// A component of a container. Include this header to visit all alternatives. The functions of
/// ComponentItemProtocol.h suffice to access one of them.
struct ComponentItem {
    static constexpr std::string_view typeName = "ComponentItem";
    static constexpr std::string_view typeKey = "Type";

    using TypeIdentifier = ComponentItems::TypeIdentifier;
    using ComponentItemProtocol = ComponentItems::ComponentItemProtocol;
    using Text = ComponentItems::Text;
    using Image = ComponentItems::Image;
    using Web = ComponentItems::Web;
    using Button = ComponentItems::Button;
    using Spacer = ComponentItems::Spacer;
    using AppMonitor = ComponentItems::AppMonitor;
    using PDF = ComponentItems::PDF;
    using Video = ComponentItems::Video;
    using Input = ComponentItems::Input;

    std::variant<Text, Image, Web, Button, Spacer, AppMonitor, PDF, Video, Input> value;

    /// Returns the keys common to all components.
    [[nodiscard]] const ComponentItemProtocol &common() const;
};

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
