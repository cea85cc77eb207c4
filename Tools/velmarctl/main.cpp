#include <CommandLine.h>

#include <System/SystemIdentityAuthority.h>

#include <algorithm>
#include <exception>
#include <iostream>

int main(int argumentCount, char **arguments) {
    // Buffers of their own: what a pipe has is read at once, and nothing waits for more than there is.
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
