// generate-configurations DIRECTORY COUNT: writes made configurations, which begin the fuzzing of the root
// and which other tools are tried on.
#include <Support/GeneratedConfiguration.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

int main(int argumentCount, char **arguments) {
    if (argumentCount != 3) {
        std::cerr << "usage: generate-configurations DIRECTORY COUNT\n";
        return 2;
    }
    const std::filesystem::path directory(arguments[1]);
    std::filesystem::create_directories(directory);
    const unsigned long count = std::stoul(arguments[2]);
    for (std::uint32_t seed = 0; seed < count; ++seed) {
        std::ofstream(directory / ("generated-" + std::to_string(seed) + ".plist"))
            << velmar::GeneratedConfiguration(seed).file().xml();
    }
    return 0;
}
