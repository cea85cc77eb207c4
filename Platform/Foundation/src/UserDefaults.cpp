#include <Foundation/UserDefaults.h>

#include <Foundation/Descriptor.h>
#include <Foundation/PropertyList.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <vector>

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>

namespace velmar {

namespace {

constexpr std::size_t sizeLimit = 1024 * 1024;
constexpr std::uint32_t directoryMode = 0700;
constexpr std::uint32_t fileMode = 0600;

std::string homeDirectory() {
    if (const char *home = std::getenv("HOME"); home != nullptr && *home == '/')
        return home;
    std::vector<char> buffer(16384);
    passwd record{};
    passwd *found = nullptr;
    getpwuid_r(geteuid(), &record, buffer.data(), buffer.size(), &found);
    return found != nullptr ? found->pw_dir : "/";
}

std::string configurationDirectory() {
    // A relative one is to be ignored.
    if (const char *place = std::getenv("XDG_CONFIG_HOME"); place != nullptr && *place == '/')
        return place;
    return homeDirectory() + "/.config";
}

struct Settings {
    PropertyList::Dictionary values;
    bool isDamaged = false;
};

// Throws FileError where the file is there but cannot be read.
Settings settingsAt(const std::string &path) {
    try {
        auto document = PropertyList::read(FileManager::defaultManager().contents(path, sizeLimit));
        if (auto *dictionary = document.value.dictionary())
            return {std::move(*dictionary)};
        return {{}, true};
    } catch (const PropertyListError &) {
        return {{}, true};
    } catch (const FileError &error) {
        if (error.as<FileError::TooLarge>() != nullptr)
            return {{}, true};
        if (error.as<FileError::NotFound>() == nullptr)
            throw;
        return {};
    }
}

void putAside(const std::string &path) {
    std::string aside = path + ".damaged-XXXXXX";
    const Descriptor place(mkostemp(aside.data(), O_CLOEXEC));
    if (!place || std::rename(path.c_str(), aside.c_str()) != 0)
        throw FileError::fromErrno(path, "put aside", errno);
}

// Reads, changes and writes with other processes kept out.
template <class Change>
void update(const std::string &directory, const std::string &path, const Change &change) {
    const FileManager &files = FileManager::defaultManager();
    files.createDirectory(directory, directoryMode);
    const Descriptor lock(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!lock || flock(lock.number(), LOCK_EX) != 0)
        throw FileError::fromErrno(path, "written", errno);
    Settings settings = settingsAt(path);
    change(settings.values);
    if (settings.isDamaged)
        putAside(path);
    files.writeAtomically(path, PropertyList(std::move(settings.values)).xml(), fileMode);
}

} // namespace

UserDefaults::UserDefaults(std::string_view suite)
    : directory_(configurationDirectory() + "/Velmar"),
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
    update(directory_, path_, [&](PropertyList::Dictionary &values) { values.set(key, value); });
}

void UserDefaults::remove(std::string_view key) {
    update(directory_, path_, [&](PropertyList::Dictionary &values) {
        std::vector<PropertyList::Dictionary::Entry> others;
        std::copy_if(values.begin(), values.end(), std::back_inserter(others),
                     [key](const auto &entry) { return entry.key != key; });
        values = PropertyList::Dictionary(std::move(others));
    });
}

} // namespace velmar
