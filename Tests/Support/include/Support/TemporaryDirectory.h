#pragma once

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include <stdlib.h>

namespace velmar {

/// A directory of its own, removed with all that it holds.
class TemporaryDirectory {
public:
    TemporaryDirectory() : path_((std::filesystem::temp_directory_path() / "velmar-test-XXXXXX").string()) {
        if (!::mkdtemp(path_.data())) {
            throw std::runtime_error("no temporary directory");
        }
    }
    ~TemporaryDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryDirectory(const TemporaryDirectory &) = delete;
    TemporaryDirectory &operator=(const TemporaryDirectory &) = delete;

    [[nodiscard]] const std::string &path() const noexcept { return path_; }
    [[nodiscard]] std::string path(std::string_view name) const { return path_ + '/' + std::string(name); }

    /// Writes a file, making the directories above it, and gives its path.
    std::string write(std::string_view name, std::string_view content) const {
        const std::string file = path(name);
        std::filesystem::create_directories(std::filesystem::path(file).parent_path());
        std::ofstream(file, std::ios::binary) << content;
        return file;
    }

private:
    std::string path_;
};

} // namespace velmar
