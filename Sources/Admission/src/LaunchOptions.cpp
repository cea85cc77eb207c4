#include <Admission/LaunchOptions.h>

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

namespace velmar {

MissingOptionValue::MissingOptionValue(const std::string &option)
    : LocalizedError(fmt::format("The option '{}' needs a value", option)) {}

LaunchOptions LaunchOptions::parse(std::span<const std::string> arguments) {
    LaunchOptions options;
    options.save = std::ranges::find(arguments, "--save") != arguments.end();
    for (const std::string option : {"-c", "--config"}) {
        const auto found = std::ranges::find(arguments, option);
        if (found == arguments.end()) {
            continue;
        }
        const auto value = std::next(found);
        if (value == arguments.end()) {
            throw MissingOptionValue(option);
        }
        options.configuration = *value;
        break;
    }
    return options;
}

} // namespace velmar
