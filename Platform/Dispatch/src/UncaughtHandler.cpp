#include <Dispatch/UncaughtHandler.h>

#include <cstdio>
#include <memory>
#include <mutex>

namespace velmar {

namespace {

struct Installed {
    std::mutex mutex;
    std::shared_ptr<const UncaughtHandler> handler;
};

// Never destroyed: threads may report until the process ends.
Installed &installed() {
    static auto &instance = *new Installed;
    return instance;
}

void writeToStandardError(std::string_view label, const std::exception_ptr &exception) {
    const std::string_view text = textOf(exception);
    std::fprintf(stderr, "An exception left a function of '%.*s': %.*s\n", static_cast<int>(label.size()),
                 label.data(), static_cast<int>(text.size()), text.data());
}

} // namespace

void setUncaughtHandler(UncaughtHandler handler) {
    auto exchanged = handler ? std::make_shared<const UncaughtHandler>(std::move(handler)) : nullptr;
    // Swapped, so that the old handler is destroyed after the lock is released.
    const std::lock_guard lock(installed().mutex);
    installed().handler.swap(exchanged);
}

void reportUncaught(std::string_view label, std::exception_ptr exception) noexcept {
    try {
        std::shared_ptr<const UncaughtHandler> handler;
        {
            const std::lock_guard lock(installed().mutex);
            handler = installed().handler;
        }
        if (handler) {
            (*handler)(label, std::move(exception));
        } else {
            writeToStandardError(label, exception);
        }
    } catch (...) { // NOLINT(bugprone-empty-catch): there is no one left to tell
    }
}

std::string_view textOf(const std::exception_ptr &exception) {
    try {
        std::rethrow_exception(exception);
    } catch (const std::exception &known) {
        return known.what();
    } catch (...) {
        return "an object that is no std::exception";
    }
}

} // namespace velmar
