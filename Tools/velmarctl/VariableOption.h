#pragma once

#include <CLI/CLI.hpp>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmar {

/// Adds the repeatable option "--var NAME=VALUE" to a command's options.
inline void addVariableOption(CLI::App &options, std::vector<std::string> &variables) {
    options.add_option("--var", variables, "Give a variable a value; wins over the configuration")
        ->type_name("NAME=VALUE")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->allow_extra_args(false)
        ->check([](const std::string &text) {
            return text.find('=') == std::string::npos ? "NAME=VALUE has no '='" : std::string();
        });
}

/// Splits a value of the option into name and value.
[[nodiscard]] inline std::pair<std::string_view, std::string_view> assignmentOf(std::string_view text) {
    const std::size_t end = text.find('=');
    return {text.substr(0, end), text.substr(end + 1)};
}

} // namespace velmar
