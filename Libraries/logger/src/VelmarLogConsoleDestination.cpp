#include <logger/VelmarLogConsoleDestination.h>

#include <memory>

#include <logger/ConsoleDestination.h>

namespace velmar {

VelmarLogConsoleDestination::VelmarLogConsoleDestination(std::string_view displayName)
    : VelmarLogDestination(std::make_unique<ConsoleDestination>(), displayName) {}

} // namespace velmar
