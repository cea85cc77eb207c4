#pragma once

#include <string_view>

#include <logger/VelmarLogDestination.h>

namespace velmar {

/// The application's lines on the standard output.
class VelmarLogConsoleDestination : public VelmarLogDestination {
public:
    explicit VelmarLogConsoleDestination(std::string_view displayName);
};

} // namespace velmar
