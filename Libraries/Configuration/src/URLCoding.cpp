#include <Configuration/URLCoding.h>

namespace velmar {

URL Decodable<URL>::decode(const Decoding &decoding) {
    const auto text = decoding.value.string();
    const auto url = text ? URL::fromString(*text) : std::nullopt;
    if (!url) {
        throwWrongType(decoding, plistType());
    }
    recordVariables(decoding);
    return *url;
}

URL plugged(const URL &url) {
    return url.hasPlaceholders() ? URL::fromString(plugged(url.text())).value_or(url) : url;
}

} // namespace velmar
