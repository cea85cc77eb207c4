#pragma once

#include <Configuration/Configuration.h>
#include <Foundation/PropertyListDocument.h>

#include <fmt/format.h>

#include <string>
#include <string_view>

namespace velmar::test {

/// A file whose root dictionary holds `content`.
inline PropertyList fileWith(std::string_view content) {
    return PropertyList::read(fmt::format(R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>{}</dict></plist>)",
                                          content));
}

/// A file with one slide, so that the root is valid, and `content`.
inline PropertyList validFileWith(std::string_view content) {
    return fileWith(
        fmt::format("<key>Slides</key><array><dict><key>Containers</key><array/></dict></array>{}", content));
}

/// The text of the error of decoding a file, or "decoded".
inline std::string outcomeOf(const PropertyList &file) {
    try {
        static_cast<void>(Configuration::decode(file));
    } catch (const LocalizedError &error) {
        return error.errorDescription();
    }
    return "decoded";
}

} // namespace velmar::test
