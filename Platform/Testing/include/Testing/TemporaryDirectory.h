#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace velmar {

/// A new directory for one test. The destructor removes it with its content.
class TemporaryDirectory {
public:
    TemporaryDirectory() {
        std::string pattern = (std::filesystem::temp_directory_path() / "velmar-test-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) {
            throw std::runtime_error("no temporary directory");
        }
        path_ = pattern;
    }
    ~TemporaryDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryDirectory(const TemporaryDirectory &) = delete;
    TemporaryDirectory &operator=(const TemporaryDirectory &) = delete;

    [[nodiscard]] const std::string &path() const noexcept { return path_; }
    [[nodiscard]] std::string path(const std::string &name) const { return path_ + "/" + name; }

    /// Writes a file, creating its parent directories, and returns its path.
    std::string write(const std::string &name, std::string_view content) const {
        std::string file = path(name);
        std::filesystem::create_directories(std::filesystem::path(file).parent_path());
        std::ofstream(file, std::ios::binary) << content;
        return file;
    }

private:
    std::string path_;
};

} // namespace velmar
