#include <Foundation/LaunchEnvironment.h>

#include <string>
#include <vector>

#include <unistd.h>

namespace velmar::LaunchEnvironment {

namespace {

struct Environment {
    std::vector<std::string> entries;
    std::vector<char *> pointers;
};

// Never destroyed: queues may still launch programs at exit.
const Environment *kept = nullptr;

} // namespace

void keep() {
    auto *environment = new Environment;
    for (char **entry = environ; *entry != nullptr; ++entry) {
        environment->entries.emplace_back(*entry);
    }
    for (std::string &entry : environment->entries) {
        environment->pointers.push_back(entry.data());
    }
    environment->pointers.push_back(nullptr);
    kept = environment;
}

char *const *get() noexcept {
    return kept == nullptr ? environ : kept->pointers.data();
}

} // namespace velmar::LaunchEnvironment
