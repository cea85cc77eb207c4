#include <command-runner/CompletionError.h>

namespace velmar {

std::string CompletionFailure::NoProcessesBuiltFromRawCommand::errorDescription() const {
    return "No processes could be built from the command '" + command + "'.";
}

std::string CompletionFailure::NilString::errorDescription() const {
    return "The output of the command is not valid UTF-8.";
}

std::string CompletionFailure::Unexpected::errorDescription() const {
    return "The command could not be executed: " + reason + ".";
}

} // namespace velmar
