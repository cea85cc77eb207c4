// Runs a fuzzer's function over every file of the given directories, as an ordinary test.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size);

int main(int argumentCount, char **arguments) {
    std::size_t files = 0;
    for (int index = 1; index < argumentCount; ++index) {
        std::error_code error;
        for (const auto &entry : std::filesystem::directory_iterator(arguments[index], error)) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
            if (!file.is_open() || file.bad()) {
                std::fprintf(stderr, "%s cannot be read\n", entry.path().c_str());
                return EXIT_FAILURE;
            }
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size());
            ++files;
        }
        if (error) {
            std::fprintf(stderr, "%s: %s\n", arguments[index], error.message().c_str());
            return EXIT_FAILURE;
        }
    }
    std::printf("%zu files\n", files);
    // An empty corpus means that the path is wrong.
    return files > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
