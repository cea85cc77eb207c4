#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace velmar {

/// A started program.
struct RunningApplication {
    /// Identifier of the desktop entry ("org.gnome.Calculator"), or the executable's name.
    std::string identifier;
    std::int32_t processIdentifier = 0;
    bool operator==(const RunningApplication &) const = default;
};

/// Observes the start of applications on this machine. Main thread only.
class RunningApplications {
public:
    using Observer = std::function<void(const RunningApplication &application)>;

    /// Owns an observation. Destroying it ends the observation; the observer is not called afterwards.
    class Observation {
    public:
        virtual ~Observation() = default;
    };

    virtual ~RunningApplications() = default;

    /// Calls the observer on the main thread once for each application that starts from now on, in order.
    /// Running applications are not reported.
    [[nodiscard]] virtual std::unique_ptr<Observation> observe(Observer observer) = 0;
};

} // namespace velmar
