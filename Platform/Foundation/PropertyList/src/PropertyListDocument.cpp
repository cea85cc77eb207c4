#include "PropertyListBinaryReader.h"
#include "PropertyListXmlReader.h"

#include <Foundation/PropertyList.h>

namespace velmar {

std::size_t PropertyList::Document::lineOf(std::uint32_t offset) const noexcept {
    return offset == noOffset ? 0 : lines.lineOf(offset);
}

PropertyList::Document PropertyList::read(std::span<const std::byte> bytes) {
    return read(std::string_view(reinterpret_cast<const char *>(bytes.data()), bytes.size()));
}

PropertyList::Document PropertyList::read(std::string_view bytes) {
    if (bytes.empty()) {
        throw PropertyListError("the file is empty", 0, 1);
    }
    if (bytes.size() >= noOffset) {
        throw PropertyListError("the file is larger than 4 GiB", 0, 1);
    }
    if (bytes.starts_with("bplist")) {
        return PropertyListBinaryReader(std::as_bytes(std::span(bytes))).read();
    }
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) {
        throw PropertyListError("the text is UTF-16, only UTF-8 is supported", 0, 1);
    }
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    const std::string_view text = bytes.substr(bytes.starts_with(byteOrderMark) ? byteOrderMark.size() : 0);
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    if (first == text.npos || text[first] != '<') {
        throw PropertyListError("it is neither an XML nor a binary property list", 0, 1);
    }
    return PropertyListXmlReader(bytes).read();
}

} // namespace velmar
