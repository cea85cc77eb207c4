#include <Configuration/URLCoding.h>

namespace velmar {

URL Decodable<URL>::decode(const Decoding &decoding) {
    const std::string *const text = decoding.value.string();
    const auto url = text != nullptr ? URL::fromString(*text) : std::nullopt;
    if (!url) {
        throwWrongType(decoding, plistType());
    }
    recordVariables(*text, decoding);
    return *url;
}

URL plugged(const URL &url) {
    return url.hasPlaceholders() ? URL::fromString(plugged(url.text())).value_or(url) : url;
}

} // namespace velmar
