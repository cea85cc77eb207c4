#include <Foundation/UserDefaults.h>

#include <Foundation/Descriptor.h>
#include <Foundation/PropertyList.h>
#include <Foundation/UserDirectories.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>

namespace velmar {

namespace {

constexpr std::size_t sizeLimit = 1024 * 1024;
constexpr std::uint32_t directoryMode = 0700;
constexpr std::uint32_t fileMode = 0600;
constexpr std::chrono::seconds lockTimeout(2);
constexpr std::chrono::milliseconds lockInterval(10);

struct Settings {
    PropertyList::Dictionary values;
    bool isDamaged = false;
};

// Throws FileError if the file exists but cannot be read.
Settings settingsAt(const std::string &path) {
    try {
        auto file = PropertyList::read(FileManager::defaultManager().contents(path, sizeLimit));
        if (auto *dictionary = file.dictionary()) {
            return {std::move(*dictionary)};
        }
        return {{}, true};
    } catch (const PropertyListError &) {
        return {{}, true};
    } catch (const FileError &error) {
        if (error.as<FileError::TooLarge>() != nullptr) {
            return {{}, true};
        }
        if (error.as<FileError::NotFound>() == nullptr) {
            throw;
        }
        return {};
    }
}

void putAside(const std::string &path) {
    std::string aside = path + ".damaged-XXXXXX";
    const Descriptor place(mkostemp(aside.data(), O_CLOEXEC));
    if (!place || std::rename(path.c_str(), aside.c_str()) != 0) {
        throw FileError::fromErrno(path, "put aside", errno);
    }
}

// Locks out other processes until the descriptor is closed. The timeout keeps a stopped process that holds
// the lock from blocking a start.
Descriptor lockFile(const std::string &directory, const std::string &path) {
    Descriptor descriptor(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!descriptor) {
        throw FileError::fromErrno(path, "written", errno);
    }
    const auto deadline = std::chrono::steady_clock::now() + lockTimeout;
    while (flock(descriptor.number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EINTR && (errno != EWOULDBLOCK || std::chrono::steady_clock::now() >= deadline)) {
            throw FileError::fromErrno(path, "locked", errno);
        }
        std::this_thread::sleep_for(lockInterval);
    }
    return descriptor;
}

std::string textOf(const std::string &path, PropertyList::Dictionary values) {
    try {
        return PropertyList(std::move(values)).xml();
    } catch (const PropertyListError &) {
        throw FileError(FileError::SystemError{path, "written", EILSEQ});
    }
}

} // namespace

UserDefaults::UserDefaults(std::string_view suite)
    : directory_(UserDirectories::configuration() + "/Velmar"),
      path_(directory_ + "/" + std::string(suite) + ".plist") {}

std::optional<std::string> UserDefaults::string(std::string_view key) const {
    try {
        const Settings settings = settingsAt(path_);
        const PropertyList *value = settings.values.find(key);
        const std::string *text = value != nullptr ? value->string() : nullptr;
        return text != nullptr ? std::optional(*text) : std::nullopt;
    } catch (const FileError &) {
        return std::nullopt;
    }
}

void UserDefaults::set(std::string_view key, std::string_view value) {
    const FileManager &files = FileManager::defaultManager();
    files.createDirectory(directory_, directoryMode);
    const Descriptor locked = lockFile(directory_, path_);
    Settings settings = settingsAt(path_);
    settings.values.set(key, value);
    const std::string text = textOf(path_, std::move(settings.values));
    if (settings.isDamaged) {
        putAside(path_);
    }
    files.writeAtomically(path_, text, fileMode);
}

} // namespace velmar
