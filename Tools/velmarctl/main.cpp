#include <CommandLine.h>

#include <System/SystemIdentityAuthority.h>

#include <algorithm>
#include <exception>
#include <iostream>

int main(int argumentCount, char **arguments) {
    // Unsynchronised streams: a read returns what the pipe holds instead of waiting for a full buffer.
    std::ios::sync_with_stdio(false);
    try {
        const auto status = velmar::runCommandLine(
            {arguments + std::min(argumentCount, 1), arguments + argumentCount},
            {velmar::SystemIdentityAuthority::shared(), std::cin, std::cout, std::cerr});
        return static_cast<int>(status);
    } catch (const std::exception &error) {
        std::cerr << "velmarctl: " << error.what() << '\n';
        return static_cast<int>(velmar::ExitStatus::failed);
    }
}
