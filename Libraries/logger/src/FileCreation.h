#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include <fcntl.h>
#include <sys/types.h>

#include <Foundation/Descriptor.h>
#include <logger/FileDestination.h>

namespace velmar {

/// Opens and creates folders and files with the right owner. An owner on whose behalf root writes may replace
/// anything in their folders at any time. Links are therefore not followed, and items there are created with
/// the owner's rights.
class FileCreation {
public:
    explicit FileCreation(std::optional<FileOwner> owner);

    /// Opens an absolute folder for the *at system calls and creates missing components, except `required`
    /// and its parents. Throws FileError.
    [[nodiscard]] Descriptor openFolder(const std::filesystem::path &folder,
                                        const std::filesystem::path &required) const;

    /// Creates a new file. Returns a closed descriptor and sets errno on failure.
    [[nodiscard]] Descriptor createFile(int folder, const std::string &name, int flags) const;

    /// Returns true if files of this user may be written.
    [[nodiscard]] bool mayOwn(uid_t user) const;

private:
    [[nodiscard]] Descriptor enter(int parent, const std::string &name, bool create) const;
    [[nodiscard]] Descriptor makeFolder(int parent, const std::string &name) const;

    // Set only if the process runs as root and the owner is another user.
    std::optional<FileOwner> owner_;
};

} // namespace velmar
