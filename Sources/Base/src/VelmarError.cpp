#include <Base/VelmarError.h>

#include <fmt/format.h>

namespace velmar {

std::string VelmarErrorCases::InternalError::errorDescription() const {
    return fmt::format("Internal error: {}", description);
}

std::string VelmarErrorCases::MissingConfigurationFile::errorDescription() const {
    return fmt::format("Configuration file is missing. [{}]", path);
}

std::string VelmarErrorCases::IncorrectPermissionsOnConfigFile::errorDescription() const {
    return fmt::format(
        "The configuration file at '{}' has too much permissions and cannot be used.\n"
        "Allowed cases:\n"
        "- The 'user' is an 'admin' and is the only one to have the 'write' permission. Ex: '-rw-r--r--'.\n"
        "- The 'group' is 'admin' or 'wheel' and is the only one to have the 'write' permissions. "
        "Ex: '-r--rw-r--'\n"
        "- The 'user' and group are 'admin' (or group: 'wheel') and the 'other' user has no 'write' "
        "permission. "
        "Ex: '-rw-rw-r--.",
        path);
}

std::string VelmarErrorCases::WrongKeyInConfiguration::errorDescription() const {
    return fmt::format("There is a wrong key/value pair in the configuration file. {}", description);
}

std::string VelmarErrorCases::InvalidInstaller::errorDescription() const {
    return fmt::format("The installer {} is not valid", installer);
}

std::string VelmarErrorCases::InvalidColorStringHexacode::errorDescription() const {
    return fmt::format("{} is not a valid color hexa code. Try #AAAAAA format", code);
}

std::string VelmarErrorCases::InvalidTextAlignment::errorDescription() const {
    return fmt::format("{} is not valid. Try Left, Center, Right, Justified", alignment);
}

std::string VelmarErrorCases::UnderlyingError::errorDescription() const {
    return description;
}

std::string VelmarErrorCases::InvalidURL::errorDescription() const {
    return fmt::format("Can't make an URL from the path {}", path);
}

std::string VelmarErrorCases::MissingFile::errorDescription() const {
    return fmt::format("No file found at '{}'", path);
}

std::string VelmarErrorCases::TerminationEventUnbuilt::errorDescription() const {
    return fmt::format("Error while building the Apple Event to {}. {}",
                       TerminationEventSender::verb(eventType), error);
}

std::string VelmarErrorCases::KeychainError::errorDescription() const {
    return fmt::format("Keychain error: {}", description);
}

std::string VelmarErrorCases::RegisteredVariableUsesOtherVariables::errorDescription() const {
    return fmt::format(
        "The value of the variable '{}' at '{}' uses other variables, which is not allowed outside "
        "of General.Variables.",
        variable, path);
}

std::string VelmarErrorCases::NoSimpleMatchFoundToDecodeArray::errorDescription() const {
    return "Trying to decode from a type which doesn't match the following: [String], [Int], [Double]";
}

std::string VelmarErrorCases::CompletionNilString::errorDescription() const {
    return "The completion handler returns a nil String";
}

} // namespace velmar
