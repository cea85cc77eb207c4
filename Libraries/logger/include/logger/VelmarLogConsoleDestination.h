#pragma once

#include <string_view>

#include <logger/VelmarLogDestination.h>

namespace velmar {

/// Writes the application's lines to standard output.
class VelmarLogConsoleDestination : public VelmarLogDestination {
public:
    explicit VelmarLogConsoleDestination(std::string_view displayName);
};

} // namespace velmar
