#include <Foundation/ProcessError.h>

#include <cstring>

namespace velmar {

std::string ProcessFailure::NoSuchCommand::errorDescription() const {
    return "The command '" + name + "' was not found.";
}

std::string ProcessFailure::HoldsNul::errorDescription() const {
    return "The program '" + path + "' couldn't be launched: its path or an argument holds a NUL byte.";
}

std::string ProcessFailure::MissingInterpreter::errorDescription() const {
    return "The program '" + path + "' couldn't be launched: the interpreter that it names is missing.";
}

std::string ProcessFailure::NotLaunched::errorDescription() const {
    const char *reason = strerrordesc_np(code); // Independent of the locale.
    return "The program '" + path +
           "' couldn't be launched: " + (reason != nullptr ? reason : "error " + std::to_string(code)) + ".";
}

} // namespace velmar
