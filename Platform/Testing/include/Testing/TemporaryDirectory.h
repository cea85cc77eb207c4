#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace velmar {

/// A fresh directory for one test, removed with it.
class TemporaryDirectory {
public:
    TemporaryDirectory() {
        std::string pattern = (std::filesystem::temp_directory_path() / "velmar-test-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("no temporary directory");
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

private:
    std::string path_;
};

} // namespace velmar
