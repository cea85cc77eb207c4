#include <expressions/Variables.h>

#include <Foundation/UnicodeText.h>

namespace velmar {

HashedVariableName::HashedVariableName(std::string_view text) : name(text), hash(VariableNameHash()(text)) {}

std::size_t VariableNameHash::operator()(std::string_view name) const {
    const std::hash<std::string_view> hash;
    return UnicodeText::isAscii(name) ? hash(name) : hash(UnicodeText::composed(name));
}

bool VariableNameEqual::isEquivalent(std::string_view left, std::string_view right) {
    return UnicodeText::isEqual(left, right);
}

} // namespace velmar
