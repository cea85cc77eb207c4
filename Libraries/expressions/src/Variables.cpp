#include <expressions/Variables.h>

#include <Foundation/UnicodeText.h>

namespace velmar {

std::size_t VariableNameHash::operator()(std::string_view name) const {
    const std::hash<std::string_view> hash;
    return UnicodeText::isAscii(name) ? hash(name) : hash(UnicodeText::composed(name));
}

bool VariableNameEqual::isEquivalent(std::string_view left, std::string_view right) {
    return UnicodeText::isEqual(left, right);
}

const std::string *VariableLookup::find(std::string_view name) const noexcept {
    if (named != nullptr) {
        if (const auto found = named->find(name); found != named->end())
            return &found->second;
    }
    const auto found = variables.find(name);
    return found != variables.end() ? &found->second : nullptr;
}

} // namespace velmar
