#pragma once

#include "PropertyListBuilder.h"
#include "XmlScanner.h"

#include <Foundation/PropertyListDocument.h>

#include <string_view>

namespace velmar {

/// Reads an XML property list. All functions throw PropertyListError.
class PropertyListXmlReader {
public:
    /// `text` must outlive the document and be smaller than 4 GiB.
    explicit PropertyListXmlReader(std::string_view text)
        : text_(text), scanner_(text), builder_(text.size()) {}

    [[nodiscard]] PropertyListDocument read();

private:
    using Tag = XmlScanner::Tag;
    enum class Element { Key, Dictionary, Array, String, True, False, Integer, Real, Date, Data, Unknown };

    [[nodiscard]] static Element elementOf(std::string_view name) noexcept;

    void readTree(const Tag &root);
    void readStart(const Tag &tag);
    void readContainer(const Tag &tag, bool isDictionary);
    void readKey(const Tag &tag);
    void readEnd(const Tag &tag);
    void requirePlaceForValue(const Tag &tag) const;
    [[nodiscard]] PropertyListValue scalar(const Tag &tag, Element element);
    [[nodiscard]] std::string_view keptText(const Tag &tag);

    std::string_view text_;
    XmlScanner scanner_;
    PropertyListBuilder builder_;
};

} // namespace velmar
