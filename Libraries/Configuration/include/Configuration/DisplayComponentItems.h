#pragma once

#include <Configuration/ComponentItemProtocol.h>
#include <Configuration/FontItem.h>
#include <Configuration/InheritableKeyWrapper.h>
#include <Configuration/URLCoding.h>
#include <Configuration/VariableKeyWrapper.h>

namespace velmar::ComponentItems {

struct Text {
    static constexpr std::string_view typeName = "ComponentItem.Text";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::text;

    ComponentItemProtocol common;
    VariableKeyWrapper<std::string> _text{"Text", required};
    InheritableKeyWrapper<std::optional<FontItem>> _font{"TextFontConfiguration", optional,
                                                         &Library::fontStyles};
};

/// One picture for both appearances, or one for each.
struct Image {
    static constexpr std::string_view typeName = "ComponentItem.Image";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::image;

    ComponentItemProtocol common;
    KeyWrapper<std::optional<URL>> _url{"URL", requiredIfNotSpecified({"LightModeURL", "DarkModeURL"})};
    KeyWrapper<std::optional<URL>> _lightModeURL{"LightModeURL", requiredIfSpecified({"DarkModeURL"})};
    KeyWrapper<std::optional<URL>> _darkModeURL{"DarkModeURL", requiredIfSpecified({"LightModeURL"})};
    KeyWrapper<std::optional<double>> _height{"Height", optional}; ///< In points.
    KeyWrapper<bool> _shouldFillSpace{false, "ShouldFillSpace", optional};
};

struct Web {
    static constexpr std::string_view typeName = "ComponentItem.Web";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::web;

    ComponentItemProtocol common;
    KeyWrapper<URL> _url{URL::file("/"), "URL", required};
    KeyWrapper<bool> _isVerticalScrollBarHidden{false, "IsVerticalScrollBarHidden", optional};
    KeyWrapper<bool> _isHorizontalScrollBarHidden{true, "IsHorizontalScrollBarHidden", optional};
    KeyWrapper<bool> _isScrollDisabled{false, "IsScrollDisabled", optional};
};

struct Spacer {
    static constexpr std::string_view typeName = "ComponentItem.Spacer";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::spacer;

    ComponentItemProtocol common;
    KeyWrapper<std::optional<double>> _height{"Height", optional}; ///< In points; absent takes what is left.
};

/// The list of the applications that are being installed.
struct AppMonitor {
    static constexpr std::string_view typeName = "ComponentItem.AppMonitor";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::appMonitor;

    ComponentItemProtocol common;
    InheritableKeyWrapper<std::optional<FontItem>> _nameFontConfiguration{"NameFontConfiguration", optional,
                                                                          &Library::fontStyles};
    InheritableKeyWrapper<std::optional<FontItem>> _detailFontConfiguration{"DetailFontConfiguration",
                                                                            optional, &Library::fontStyles};
    KeyWrapper<bool> _isMandatory{false, "IsMandatory", optional};
    KeyWrapper<std::optional<std::string>> _waitForApplicationToBeInstalledWarningText{
        "WaitForApplicationToBeInstalledWarningText", optional};
    KeyWrapper<bool> _showScroller{false, "ShowScroller", optional};
};

struct PDF {
    static constexpr std::string_view typeName = "ComponentItem.PDF";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::pdf;

    ComponentItemProtocol common;
    KeyWrapper<URL> _fileURL{URL::file("/"), "URL", required};
    KeyWrapper<bool> _linksEnabled{false, "LinksAreEnabled", optional};
};

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
