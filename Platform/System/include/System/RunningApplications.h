#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace velmar {

/// A program that was started.
struct RunningApplication {
    std::string identifier; ///< That of its desktop entry ("org.gnome.Calculator"), or the executable's name.
    std::int32_t processIdentifier = 0;
    bool operator==(const RunningApplication &) const = default;
};

/// The programs that run on the machine, of which it tells the newly started ones. Main thread.
class RunningApplications {
public:
    using Observer = std::function<void(const RunningApplication &application)>;

    /// Ends when it is destroyed; the observer is not called any more then.
    class Observation {
    public:
        virtual ~Observation() = default;
    };

    virtual ~RunningApplications() = default;

    /// Calls the observer on the main thread once for each start of an application from now on, in the order
    /// of the starts. Those that run already are not told.
    [[nodiscard]] virtual std::unique_ptr<Observation> observe(Observer observer) = 0;
};

} // namespace velmar
