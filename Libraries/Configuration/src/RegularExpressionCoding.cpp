#include <Configuration/RegularExpressionCoding.h>

namespace velmar {

RegularExpression compiled(std::string_view pattern, const Decoding &decoding) {
    try {
        return decoding.context.regularExpression(pattern);
    } catch (const RegularExpressionError &) {
        throw ConfigurationError(
            ConfigurationErrors::InvalidRegex{std::string(pattern), decoding.path.text()});
    }
}

RegularExpression Decodable<RegularExpression>::decode(const Decoding &decoding) {
    const auto pattern = decoding.value.string();
    if (!pattern) {
        throwWrongType(decoding, plistType());
    }
    return compiled(*pattern, decoding);
}

} // namespace velmar
