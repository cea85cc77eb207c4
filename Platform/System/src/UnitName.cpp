#include "UnitName.h"

#include "OwnedText.h"

#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/split.hpp>

#include <charconv>
#include <vector>

#include <systemd/sd-login.h>

namespace velmar {

namespace {

constexpr std::string_view scopeSuffix = ".scope";
constexpr std::string_view serviceSuffix = ".service";
constexpr std::size_t uuidLength = 36;

// Undoes the escaping of what may not stand in a part of a unit's name: "\x2d" is a dash.
std::string unescaped(std::string_view part) {
    std::string text;
    while (!part.empty()) {
        unsigned char byte = 0;
        const char *digits = part.data() + 2;
        if (part.size() >= 4 && part.starts_with("\\x") &&
            std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
            text += static_cast<char>(byte);
            part.remove_prefix(4);
        } else {
            text += part.front();
            part.remove_prefix(1);
        }
    }
    return text;
}

// Parses [LAUNCHER-]ID[-RANDOM] of a scope or [LAUNCHER-]ID[-RANDOM][@...] of a service.
std::string identifierOfDesktop(std::string_view name, bool isScope) {
    name = name.substr(0, name.find('@'));
    std::vector<std::string> parts;
    boost::algorithm::split(parts, name, boost::algorithm::is_any_of("-"));
    const bool hasRandom =
        isScope || parts.size() > 2 ||
        (parts.size() == 2 && parts[0].find('.') != std::string::npos &&
         parts[1].find('.') == std::string::npos); // "org.example.App-123": no launcher has dots.
    if (hasRandom && parts.size() > 1) {
        parts.pop_back();
    }
    // A launcher that doesn't escape the dashes of an identifier leaves more than one part of it.
    const std::size_t begin = parts.size() > 1 ? 1 : 0;
    std::string identifier;
    for (std::size_t i = begin; i < parts.size(); ++i) {
        identifier += (i == begin ? "" : "-") + unescaped(parts[i]);
    }
    constexpr std::string_view entrySuffix = ".desktop";
    if (identifier.ends_with(entrySuffix)) {
        identifier.resize(identifier.size() - entrySuffix.size());
    }
    return identifier;
}

// Parses NAME.APP-UUID or NAME.APP.UUID into NAME_APP, the desktop entry's identifier. A daemon has no UUID
// and no identifier.
std::string identifierOfSnap(std::string_view name) {
    if (name.size() <= uuidLength + 1) {
        return "";
    }
    name.remove_suffix(uuidLength + 1);
    std::string identifier = unescaped(name);
    const std::size_t dot = identifier.find('.');
    if (dot == std::string::npos) {
        return "";
    }
    identifier[dot] = '_';
    return identifier;
}

} // namespace

std::string unitOfProcess(std::int32_t process) {
    char *name = nullptr;
    if (sd_pid_get_user_unit(process, &name) < 0 && sd_pid_get_unit(process, &name) < 0) {
        return "";
    }
    const OwnedText unit(name);
    return unit.get();
}

std::string applicationOfUnit(std::string_view unit) {
    const bool isScope = unit.ends_with(scopeSuffix);
    if (!isScope && !unit.ends_with(serviceSuffix)) {
        return "";
    }
    unit.remove_suffix(isScope ? scopeSuffix.size() : serviceSuffix.size());
    for (const std::string_view prefix : {"app-", "flatpak-"}) {
        if (unit.starts_with(prefix)) {
            return identifierOfDesktop(unit.substr(prefix.size()), isScope);
        }
    }
    constexpr std::string_view snap = "snap.";
    return isScope && unit.starts_with(snap) ? identifierOfSnap(unit.substr(snap.size())) : "";
}

} // namespace velmar
