#include <Checks/GuardedPaths.h>

#include <Foundation/FileManager.h>
#include <System/IdentityAuthority.h>

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <system_error>
#include <utility>
#include <vector>

#include <sys/stat.h>

namespace velmar {

namespace {

using Kind = FileAttributes::Kind;

constexpr int mostLinks = 40; // As in the kernel.

// The remaining path components, the next one last.
using Steps = std::vector<std::filesystem::path>;

void goThrough(const std::filesystem::path &path, Steps &ahead) {
    Steps steps(path.begin(), path.end());
    std::ranges::reverse(steps);
    ahead.insert(ahead.end(), std::make_move_iterator(steps.begin()), std::make_move_iterator(steps.end()));
}

bool isAdministrators(const FileAttributes &attributes) {
    return attributes.groupId == 0 || attributes.groupName == "wheel" || attributes.groupName == "admin";
}

} // namespace

std::optional<std::string> GuardedPaths::fault(const std::string &path) {
    const auto [known, isNew] = faults_.try_emplace(path);
    if (isNew) {
        known->second = path.starts_with('/')
                            ? found(path)
                            : fmt::format("'{}' is not an absolute path: where it leads depends on where "
                                          "Velmar is started",
                                          path);
    }
    return known->second;
}

std::optional<std::string> GuardedPaths::found(const std::string &path) {
    const std::string missing = fmt::format("There is no file at '{}'", path);
    std::optional<std::string> fault;
    Steps ahead;
    goThrough(path, ahead);
    std::filesystem::path way;
    Kind kind = Kind::Directory;
    for (int links = 0; !ahead.empty();) {
        const std::filesystem::path step = std::move(ahead.back());
        ahead.pop_back();
        if (step.empty() || step == ".") {
            continue;
        }
        if (step == "..") {
            way = way.parent_path();
            continue;
        }
        std::filesystem::path next = way / step;
        const Item &here = item(next);
        if (here.state == Item::State::barred) {
            return fault;
        }
        if (here.state == Item::State::missing) {
            return missing;
        }
        if (!here.opening.empty() && !fault) {
            fault = fmt::format("An ordinary user may change what stands at '{}': '{}' {}", path,
                                next.string(), here.opening);
        }
        kind = here.kind;
        if (kind != Kind::SymbolicLink) {
            way = std::move(next);
            continue;
        }
        std::error_code error;
        const std::filesystem::path target = std::filesystem::read_symlink(next, error);
        if (error || ++links > mostLinks) {
            return missing;
        }
        if (target.is_absolute()) {
            way.clear();
        }
        goThrough(target, ahead);
    }
    return kind == Kind::RegularFile ? fault : fmt::format("What stands at '{}' is not a file", path);
}

const GuardedPaths::Item &GuardedPaths::item(const std::filesystem::path &path) {
    const auto [known, isNew] = items_.try_emplace(path.string());
    if (isNew) {
        known->second = look(known->first);
    }
    return known->second;
}

GuardedPaths::Item GuardedPaths::look(const std::string &path) const {
    try {
        const FileAttributes attributes = FileManager::defaultManager().attributesOfItem(path);
        return {Item::State::present, attributes.kind, opening(attributes)};
    } catch (const FileError &error) {
        const auto *const refused = error.as<FileError::SystemError>();
        const bool isBarred = refused != nullptr && refused->code == EACCES;
        return {isBarred ? Item::State::barred : Item::State::missing, Kind::Other, {}};
    }
}

std::string GuardedPaths::opening(const FileAttributes &attributes) const {
    const auto &owner = attributes.ownerName;
    if (attributes.userId != 0 && !(owner && authority_.isMember(*owner, "admin"))) {
        return fmt::format("belongs to '{}'", owner.value_or(std::to_string(attributes.userId)));
    }
    // The mode of a link has no effect. In a folder with the sticky bit, others cannot replace a file.
    const bool isSticky = attributes.kind == Kind::Directory && (attributes.permissions & S_ISVTX) != 0;
    if (attributes.kind == Kind::SymbolicLink || isSticky) {
        return {};
    }
    if ((attributes.permissions & S_IWOTH) != 0) {
        return "may be written by everyone";
    }
    if ((attributes.permissions & S_IWGRP) != 0 && !isAdministrators(attributes)) {
        return fmt::format("may be written by the group '{}'",
                           attributes.groupName.value_or(std::to_string(attributes.groupId)));
    }
    return {};
}

} // namespace velmar
