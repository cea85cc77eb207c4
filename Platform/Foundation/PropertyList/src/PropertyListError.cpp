#include <Foundation/PropertyListError.h>

namespace velmar {

static std::string describe(std::string_view reason, std::size_t offset, std::size_t line) {
    std::string text = "The property list ";
    if (offset == PropertyListError::noOffset) {
        text += "cannot be written: ";
    } else if (line > 0) {
        text += "is not valid at line " + std::to_string(line) + ": ";
    } else {
        text += "is not valid at byte " + std::to_string(offset) + ": ";
    }
    text += reason;
    text += '.';
    return text;
}

PropertyListError::PropertyListError(std::string_view reason, std::size_t offset, std::size_t line)
    : LocalizedError(describe(reason, offset, line)), offset_(offset), line_(line) {}

} // namespace velmar
