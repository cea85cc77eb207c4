#include <Foundation/URL.h>

#include <Foundation/UnicodeText.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <system_error>

namespace velmar {

namespace {

constexpr std::string_view unreserved = "-._~";
constexpr std::string_view subDelimiters = "!$&'()*+,;=";

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isHexDigit(char c) {
    return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// Characters that every part of a URL may contain unencoded (pchar of RFC 3986).
bool isPathCharacter(char c) {
    return isLetter(c) || isDigit(c) || unreserved.find(c) != std::string_view::npos ||
           subDelimiters.find(c) != std::string_view::npos || c == ':' || c == '@';
}

bool isEscape(std::string_view text, std::size_t position) {
    return text[position] == '%' && position + 2 < text.size() && isHexDigit(text[position + 1]) &&
           isHexDigit(text[position + 2]);
}

void appendEscaped(std::string &result, char byte) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    result += '%';
    result += digits[value >> 4U];
    result += digits[value & 0xFU];
}

std::string encoded(std::string_view text, std::string_view alsoAllowed, bool keepsEscapes) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size(); ++position) {
        const char c = text[position];
        if (isPathCharacter(c) || alsoAllowed.find(c) != std::string_view::npos ||
            (keepsEscapes && isEscape(text, position))) {
            result += c;
        } else {
            appendEscaped(result, c);
        }
    }
    return result;
}

std::string decoded(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size(); ++position) {
        if (isEscape(text, position)) {
            unsigned value = 0;
            std::from_chars(text.data() + position + 1, text.data() + position + 3, value, 16);
            result += static_cast<char>(value);
            position += 2;
        } else {
            result += text[position];
        }
    }
    return result;
}

// Parts of a URL, as views of its text (appendix B of RFC 3986).
struct Parts {
    std::optional<std::string_view> scheme;    // without ":"
    std::optional<std::string_view> authority; // without "//"
    std::string_view path;
    std::string_view rest; // query and fragment, with "?" or "#"
};

Parts partsOf(std::string_view text) {
    Parts parts;
    if (!text.empty() && isLetter(text.front())) {
        const auto end = std::find_if_not(text.begin(), text.end(), [](char c) {
            return isLetter(c) || isDigit(c) || c == '+' || c == '-' || c == '.';
        });
        if (end != text.end() && *end == ':') {
            parts.scheme = text.substr(0, static_cast<std::size_t>(end - text.begin()));
            text.remove_prefix(parts.scheme->size() + 1);
        }
    }
    if (text.starts_with("//")) {
        text.remove_prefix(2);
        parts.authority = text.substr(0, std::min(text.find_first_of("/?#"), text.size()));
        text.remove_prefix(parts.authority->size());
    }
    parts.path = text.substr(0, std::min(text.find_first_of("?#"), text.size()));
    parts.rest = text.substr(parts.path.size());
    return parts;
}

// Host and port of an authority, without the user information.
struct Authority {
    std::string_view host;
    std::string_view port;
};

Authority authorityOf(std::string_view text) {
    if (const auto at = text.rfind('@'); at != std::string_view::npos) {
        text.remove_prefix(at + 1);
    }
    const auto bracket = text.starts_with('[') ? text.find(']') : std::string_view::npos;
    const auto colon = text.find(':', bracket == std::string_view::npos ? 0 : bracket);
    if (colon == std::string_view::npos) {
        return {text, {}};
    }
    return {text.substr(0, colon), text.substr(colon + 1)};
}

bool isGoodAuthority(std::string_view text) {
    const auto [host, port] = authorityOf(text);
    if (!std::all_of(port.begin(), port.end(), isDigit)) {
        return false;
    }
    if (host.starts_with('[')) {
        return host.size() > 2 && host.ends_with(']') &&
               std::all_of(host.begin() + 1, host.end() - 1,
                           [](char c) { return isHexDigit(c) || c == ':' || c == '.'; });
    }
    return host.find_first_of(" \"<>\\^`{|}[]%") == std::string_view::npos ||
           std::all_of(host.begin(), host.end(), [&host = host](const char &c) {
               return isPathCharacter(c) || static_cast<unsigned char>(c) >= 0x80 ||
                      isEscape(host, static_cast<std::size_t>(&c - host.data()));
           });
}

std::string_view withoutTrailingSlashes(std::string_view path) {
    while (path.size() > 1 && path.ends_with('/')) {
        path.remove_suffix(1);
    }
    return path;
}

} // namespace

std::optional<URL> URL::fromString(std::string_view text) {
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
    if (text.empty() || !UnicodeText::isValidUtf8(text) || std::any_of(text.begin(), text.end(), isControl)) {
        return std::nullopt;
    }
    URL url{std::string(text)};
    if (const auto authority = partsOf(text).authority;
        authority && !url.hasPlaceholders() && !isGoodAuthority(*authority)) {
        return std::nullopt;
    }
    return url;
}

URL URL::file(std::string_view path, bool isDirectory) {
    std::string absolute(path);
    if (!absolute.starts_with('/')) {
        std::error_code unknown; // ignored: without a current directory the path becomes "/"
        absolute = std::filesystem::current_path(unknown).string() + "/" + absolute;
    }
    if (isDirectory && !absolute.ends_with('/')) {
        absolute += '/';
    }
    return URL("file://" + encoded(absolute, "/", false));
}

std::string URL::absoluteString() const {
    // Reserved characters of the other parts stay. The first "#" starts the fragment; later ones are encoded.
    const auto fragment = std::min(text_.find('#'), text_.size());
    std::string result = encoded(std::string_view(text_).substr(0, fragment), "/?[]", true);
    if (fragment < text_.size()) {
        result += "#" + encoded(std::string_view(text_).substr(fragment + 1), "/?", true);
    }
    return result;
}

bool URL::hasPlaceholders() const noexcept {
    const auto begin = text_.find("${");
    return begin != std::string::npos && text_.find('}', begin) != std::string::npos;
}

std::optional<std::string> URL::scheme() const {
    const auto scheme = partsOf(text_).scheme;
    return scheme ? std::optional(UnicodeText::lowercased(*scheme)) : std::nullopt;
}

bool URL::isFileURL() const {
    return scheme() == "file";
}

std::string URL::path() const {
    const std::string whole = decoded(partsOf(text_).path);
    return std::string(withoutTrailingSlashes(whole));
}

std::string URL::lastPathComponent() const {
    const std::string whole = path();
    return whole == "/" ? whole : whole.substr(whole.rfind('/') + 1);
}

URL URL::appendingPathComponent(std::string_view component, bool isDirectory) const {
    const Parts parts = partsOf(text_);
    component.remove_prefix(std::min(component.find_first_not_of('/'), component.size()));
    std::string path(parts.path);
    if (!path.ends_with('/') && (!path.empty() || parts.authority)) {
        path += '/';
    }
    path += encoded(component, "/", false);
    if (isDirectory && !path.ends_with('/')) {
        path += '/';
    }
    const auto before = static_cast<std::size_t>(parts.path.data() - text_.data());
    return URL(text_.substr(0, before) + path + std::string(parts.rest));
}

} // namespace velmar
