#pragma once

#include <Configuration/ButtonComponentItem.h>
#include <Configuration/DisplayComponentItems.h>
#include <Configuration/InputComponentItem.h>

#include <variant>

namespace velmar {

/// One piece of a container's content.
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

    /// The keys that every component has, of whichever it is.
    [[nodiscard]] const ComponentItemProtocol &common() const;
};

/// The variables that the texts of a component use, those of its nested items included. Its condition is no
/// text.
[[nodiscard]] VariableNames usedVariables(const ComponentItem &component);

} // namespace velmar
