#pragma once

#include <Foundation/LocalizedError.h>

#include <optional>
#include <span>
#include <string>

namespace velmar {

/// An option that needs a value is the last argument.
class MissingOptionValue final : public LocalizedError {
public:
    explicit MissingOptionValue(const std::string &option);
};

/// What the process's arguments say about the configuration.
struct LaunchOptions {
    /// The value of "-c", or else of "--config", as it was given; the first occurrence counts.
    std::optional<std::string> configuration;
    /// "--save" stands anywhere among the arguments.
    bool save = false;

    /// Looks the options up; every other argument is left alone, also one that looks like an option.
    /// Throws MissingOptionValue when the option that counts has nothing behind it.
    [[nodiscard]] static LaunchOptions parse(std::span<const std::string> arguments);
};

} // namespace velmar
