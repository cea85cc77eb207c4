#include "ProcessDirectory.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace velmar {

namespace {

// Holds about 1,300 entries per system call.
constexpr std::size_t bufferSize = 32 * 1024;
constexpr std::size_t statLimit = 4096;
constexpr std::uint64_t kernelThreadFlag = 0x0020'0000;

template <class Number>
std::optional<Number> number(std::string_view text) {
    Number value{};
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

/// Fields of a stat file after the name, numbered from 3 as in proc(5).
class StatFields {
public:
    explicit StatFields(std::string_view text) : rest_(text) {}

    template <class Number>
    std::optional<Number> field(int wanted) {
        for (; next_ < wanted; ++next_) {
            const std::size_t blank = rest_.find(' ');
            if (blank == std::string_view::npos) {
                return std::nullopt;
            }
            rest_.remove_prefix(blank + 1);
        }
        return number<Number>(rest_.substr(0, rest_.find_first_of(" \n")));
    }

private:
    std::string_view rest_;
    int next_ = 3;
};

} // namespace

ProcessDirectory::ProcessDirectory(const std::string &path)
    : path_(path), descriptor_(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)), buffer_(bufferSize) {}

std::vector<ProcessDirectory::Entry> ProcessDirectory::list() {
    std::vector<Entry> entries;
    entries.reserve(lastCount_ + lastCount_ / 4);
    // readdir would reopen the directory and copy each name.
    if (lseek(descriptor_.number(), 0, SEEK_SET) != 0) {
        return entries;
    }
    for (;;) {
        const long size = syscall(SYS_getdents64, descriptor_.number(), buffer_.data(), buffer_.size());
        if (size <= 0) {
            break;
        }
        for (const char *at = buffer_.data(); at < buffer_.data() + size;) {
            const auto *entry = reinterpret_cast<const dirent64 *>(at);
            if (const auto process = number<std::int32_t>(entry->d_name)) {
                entries.push_back({*process, entry->d_ino});
            }
            at += entry->d_reclen;
        }
    }
    std::sort(entries.begin(), entries.end(),
              [](const Entry &one, const Entry &other) { return one.process < other.process; });
    lastCount_ = entries.size();
    return entries;
}

std::optional<ProcessRecord> ProcessDirectory::record(std::int32_t process) const {
    const std::string text = contents(process, "stat", statLimit);
    // The name may contain parentheses and blanks.
    const std::size_t open = text.find('(');
    const std::size_t close = text.rfind(") ");
    if (open == std::string::npos || close == std::string::npos || close < open) {
        return std::nullopt;
    }
    StatFields fields(std::string_view(text).substr(close + 2));
    const auto parent = fields.field<std::int32_t>(4);
    const auto flags = fields.field<std::uint64_t>(9);
    const auto startTime = fields.field<std::uint64_t>(22);
    struct stat status {};
    const std::string name = std::to_string(process);
    if (!parent || !flags || !startTime || fstatat(descriptor_.number(), name.c_str(), &status, 0) != 0) {
        return std::nullopt;
    }

    ProcessRecord record{.parent = *parent,
                         .startTime = *startTime,
                         .user = status.st_uid,
                         .isKernelThread = (*flags & kernelThreadFlag) != 0,
                         .name = text.substr(open + 1, close - open - 1),
                         .executable = {}};
    char target[4096];
    const ssize_t length =
        readlinkat(descriptor_.number(), (name + "/exe").c_str(), static_cast<char *>(target), sizeof target);
    if (length > 0) {
        record.executable.assign(static_cast<const char *>(target), static_cast<std::size_t>(length));
    }
    // The kernel's mark of a file that was replaced, such as by an update.
    constexpr std::string_view deleted = " (deleted)";
    if (record.executable.ends_with(deleted)) {
        record.executable.resize(record.executable.size() - deleted.size());
    }
    return record;
}

std::string ProcessDirectory::contents(std::int32_t process, const char *file, std::size_t limit) const {
    const std::string name = std::to_string(process) + "/" + file;
    const Descriptor opened(openat(descriptor_.number(), name.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    std::string text(limit, '\0');
    std::size_t size = 0;
    while (opened && size < limit) {
        const ssize_t count = read(opened.number(), text.data() + size, limit - size);
        if (count <= 0) {
            break;
        }
        size += static_cast<std::size_t>(count);
    }
    text.resize(size);
    return text;
}

std::string ProcessDirectory::workingDirectory(std::int32_t process) const {
    return path_ + "/" + std::to_string(process) + "/cwd/";
}

} // namespace velmar
