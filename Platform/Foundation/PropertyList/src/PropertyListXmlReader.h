#pragma once

#include "PropertyListBuilder.h"
#include "XmlScanner.h"

#include <Foundation/PropertyList.h>

#include <string_view>

namespace velmar {

/// Reads one XML property list. Everything throws PropertyListError.
class PropertyListXmlReader {
public:
    /// The text must outlive the reader and be shorter than 4 GiB.
    explicit PropertyListXmlReader(std::string_view text) : text_(text), scanner_(text) {}

    [[nodiscard]] PropertyList::Document read();

private:
    using Tag = XmlScanner::Tag;

    void readTree(const Tag &root);
    void readStart(const Tag &tag);
    void readContainer(const Tag &tag, bool isDictionary);
    void readKey(const Tag &tag);
    void readEnd(const Tag &tag);
    void requirePlaceForValue(const Tag &tag) const;
    [[nodiscard]] PropertyList scalar(const Tag &tag);

    std::string_view text_;
    XmlScanner scanner_;
    PropertyListBuilder builder_;
};

} // namespace velmar
