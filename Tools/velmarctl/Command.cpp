#include <Command.h>

#include <CLI/CLI.hpp>

namespace velmar {

Command::Command(CLI::App &commandLine, const char *name, const char *description)
    : options_(commandLine.add_subcommand(name, description)) {}

bool Command::isNamed() const {
    return options_->parsed();
}

} // namespace velmar
