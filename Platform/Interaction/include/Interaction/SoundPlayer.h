#pragma once

#include <functional>
#include <optional>
#include <string>

namespace velmar {

/// A sound whose file exists and begins like a sound file.
struct Sound {
    std::string path; ///< Absolute path of the file; empty for a sound that the user's theme disables.
    bool operator==(const Sound &) const = default;
};

/// The outcome of playing a sound.
struct SoundOutcome {
    /// True if the sound was played to its end. Also true without a sound device.
    bool hasFinished = false;
    std::string problem; ///< Otherwise the reason, as a sentence.
};

/// Finds and plays sounds; several can play at once. Thread-safe.
class SoundPlayer {
public:
    using Completion = std::function<void(const SoundOutcome &outcome)>;

    virtual ~SoundPlayer() = default;

    /// Returns the sound of this name in the desktop's sound theme or else among the program's own ("Hero").
    /// Returns std::nullopt if there is none.
    [[nodiscard]] virtual std::optional<Sound> soundNamed(const std::string &name) const = 0;

    /// Returns the sound at a file URL or a path, or std::nullopt if the file is missing or isn't a sound.
    [[nodiscard]] virtual std::optional<Sound> soundAt(const std::string &fileURLOrPath) const = 0;

    /// Starts playing and returns at once. The completion is called once, on the main thread, unless the
    /// application ends first. A disabled sound completes at once.
    virtual void play(const Sound &sound, Completion completion) = 0;
};

} // namespace velmar
