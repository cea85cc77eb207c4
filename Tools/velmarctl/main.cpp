#include <CommandLine.h>

#include <System/SystemIdentityAuthority.h>

#include <algorithm>
#include <exception>
#include <iostream>

int main(int argumentCount, char **arguments) {
    try {
        const auto status =
            velmar::runCommandLine({arguments + std::min(argumentCount, 1), arguments + argumentCount},
                                   velmar::SystemIdentityAuthority::shared(), std::cout, std::cerr);
        return static_cast<int>(status);
    } catch (const std::exception &error) {
        std::cerr << "velmarctl: " << error.what() << '\n';
        return static_cast<int>(velmar::ExitStatus::failed);
    }
}
