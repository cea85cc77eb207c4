#include <Configuration/RegularExpressionCoding.h>

namespace velmar {

RegularExpression compiled(const std::string &pattern, const Decoding &decoding) {
    try {
        return RegularExpression(pattern);
    } catch (const RegularExpressionError &) {
        throw ConfigurationError(ConfigurationErrors::InvalidRegex{pattern, decoding.path.text()});
    }
}

RegularExpression Decodable<RegularExpression>::decode(const Decoding &decoding) {
    const std::string *const pattern = decoding.value.string();
    if (pattern == nullptr) {
        throwWrongType(decoding, plistType());
    }
    return compiled(*pattern, decoding);
}

} // namespace velmar
