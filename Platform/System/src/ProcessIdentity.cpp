#include "ProcessIdentity.h"

#include "OwnedText.h"
#include "UnitName.h"

#include <Foundation/Descriptor.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmar {

namespace {

constexpr std::size_t argumentLimit = 4096;
constexpr std::size_t environmentLimit = 256 * 1024;
constexpr std::size_t firstLineLimit = 256; // the kernel's own limit

std::string withoutLinks(const std::string &path) {
    const OwnedText real(realpath(path.c_str(), nullptr));
    return real == nullptr ? "" : real.get();
}

std::string fileName(const std::string &path) {
    return path.substr(path.rfind('/') + 1);
}

// Returns the first line of a regular file. Other files are not opened, since opening may have side effects;
// the result is then empty.
std::string firstLine(const std::string &path) {
    const Descriptor place(open(path.c_str(), O_PATH | O_CLOEXEC));
    struct stat status {};
    if (!place || fstat(place.number(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return "";
    }
    const Descriptor file(
        open(("/proc/self/fd/" + std::to_string(place.number())).c_str(), O_RDONLY | O_CLOEXEC));
    std::string text(firstLineLimit, '\0');
    const ssize_t size = file ? read(file.number(), text.data(), text.size()) : 0;
    text.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    return text.substr(0, text.find('\n'));
}

// Returns true if the file is a script for the program, whose path must have no links.
bool isScript(const std::string &path, const std::string &program) {
    const std::string line = firstLine(path);
    if (!line.starts_with("#!")) {
        return false;
    }
    std::istringstream words(line.substr(2));
    std::string interpreter;
    words >> interpreter;
    if (fileName(interpreter) != "env") {
        return withoutLinks(interpreter) == program;
    }
    // env searches by name; the executable's name may have a version appended.
    while (words >> interpreter) {
        if (!interpreter.starts_with('-') && interpreter.find('=') == std::string::npos) {
            return fileName(program).starts_with(fileName(interpreter));
        }
    }
    return false;
}

// Returns one value of an environment block of NUL-terminated entries.
std::string value(std::string_view environment, std::string_view name) {
    while (!environment.empty()) {
        const std::string_view entry = environment.substr(0, environment.find('\0'));
        if (entry.size() > name.size() && entry.starts_with(name) && entry[name.size()] == '=') {
            return std::string(entry.substr(name.size() + 1));
        }
        environment.remove_prefix(std::min(environment.size(), entry.size() + 1));
    }
    return "";
}

} // namespace

ProcessIdentities::ProcessIdentities(const ProcessDirectory &directory, std::vector<std::string> applications,
                                     std::vector<std::string> executables, UnitOfProcess unitOfProcess)
    : directory_(directory),
      entries_(std::move(applications), std::move(executables)),
      unitOfProcess_(std::move(unitOfProcess)) {}

ApplicationIdentity ProcessIdentities::identityOf(std::int32_t process, const ProcessRecord &record) {
    std::string unit = unitOfProcess_ ? unitOfProcess_(process) : "";
    if (std::string identifier = applicationOfUnit(unit); !identifier.empty()) {
        // A scope's name differs in each run; the runs of a service differ by their invocation, which
        // libsystemd gives for the own process only.
        if (unit.ends_with(".service")) {
            unit += " " + value(directory_.contents(process, "environ", environmentLimit), "INVOCATION_ID");
        }
        return {std::move(identifier), std::move(unit)};
    }
    if (record.executable.empty()) {
        return {record.name, ""};
    }
    if (std::string identifier = entries_.identifierFor(record.executable); !identifier.empty()) {
        return {std::move(identifier), ""};
    }
    const std::string script = scriptOf(process, record.executable);
    if (script.empty()) {
        return {fileName(record.executable), ""};
    }
    std::string identifier = entries_.identifierFor(script);
    return {identifier.empty() ? fileName(script) : std::move(identifier), ""};
}

std::string ProcessIdentities::scriptOf(std::int32_t process, const std::string &interpreter) const {
    // The script follows the interpreter's name and at most one option from its "#!" line.
    const std::string arguments = directory_.contents(process, "cmdline", argumentLimit);
    std::size_t begin = arguments.find('\0');
    for (int i = 0; i < 2 && begin != std::string::npos; ++i) {
        const std::size_t end = arguments.find('\0', begin + 1);
        const std::string argument = arguments.substr(begin + 1, end - begin - 1);
        begin = end;
        if (argument.empty() || argument.starts_with('-')) {
            continue;
        }
        const std::string path =
            argument.starts_with('/') ? argument : directory_.workingDirectory(process) + argument;
        std::string script = isScript(path, interpreter) ? withoutLinks(path) : "";
        return script;
    }
    return "";
}

} // namespace velmar
