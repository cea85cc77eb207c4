#pragma once

#include <Foundation/LocalizedError.h>

#include <optional>
#include <span>
#include <string>

namespace velmar {

/// Error for an option without its value.
class MissingOptionValue final : public LocalizedError {
public:
    explicit MissingOptionValue(const std::string &option);
};

/// Options of the command line about the configuration.
struct LaunchOptions {
    /// Unchanged value of "-c" or, without "-c", of "--config". The first occurrence counts.
    std::optional<std::string> configuration;
    /// True if "--save" is among the arguments.
    bool save = false;

    /// Parses the options and ignores all other arguments, including unknown options. The argument after an
    /// option is its value, even if it looks like an option. Throws MissingOptionValue if the option is last.
    [[nodiscard]] static LaunchOptions parse(std::span<const std::string> arguments);
};

} // namespace velmar
