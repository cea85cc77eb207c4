#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include <fcntl.h>
#include <sys/types.h>

#include <Foundation/Descriptor.h>
#include <logger/FileDestination.h>

namespace velmar {

/// Opens and makes folders and files such that what is made belongs to the right user. For root on behalf of
/// an owner this is the owner, who controls the folders and may swap anything in them at any time: so no link
/// is followed, and what is made there is made with the owner's rights.
class FileCreation {
public:
    explicit FileCreation(std::optional<FileOwner> owner);

    /// Opens an absolute folder for use with the *at calls and makes what is missing of it, but for
    /// `required` and the folders above that. Throws FileError.
    [[nodiscard]] Descriptor openFolder(const std::filesystem::path &folder,
                                        const std::filesystem::path &required) const;

    /// Makes a file that is not there. Closed and errno otherwise.
    [[nodiscard]] Descriptor createFile(int folder, const std::string &name, int flags) const;

    /// Whether what belongs to this user may be written.
    [[nodiscard]] bool mayOwn(uid_t user) const;

private:
    [[nodiscard]] Descriptor enter(int parent, const std::string &name, bool create) const;
    [[nodiscard]] Descriptor makeFolder(int parent, const std::string &name) const;

    // Set only where the process is root's and the owner somebody else.
    std::optional<FileOwner> owner_;
};

} // namespace velmar
