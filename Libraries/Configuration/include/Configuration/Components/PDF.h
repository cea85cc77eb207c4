#pragma once

#include <Configuration/ComponentItemProtocol.h>
#include <Configuration/PopulatableURL.h>

#include <string_view>

namespace velmar::ComponentItems {

struct PDF {
    static constexpr std::string_view typeName = "ComponentItem.PDF";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::pdf;

    ComponentItemProtocol common;
    KeyWrapper<URL> _fileURL{URL::file("/"), "URL", required};
    KeyWrapper<bool> _linksEnabled{false, "LinksAreEnabled", optional};
};

} // namespace velmar::ComponentItems
