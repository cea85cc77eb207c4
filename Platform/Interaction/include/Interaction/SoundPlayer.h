#pragma once

#include <functional>
#include <optional>
#include <string>

namespace velmar {

/// A sound that was found and looks like one.
struct Sound {
    std::string path; ///< Absolute, of a file; empty for one that the user's theme turns off.
    bool operator==(const Sound &) const = default;
};

/// How the playing of a sound ended.
struct SoundOutcome {
    bool hasFinished = false; ///< To the end; also where nothing could be heard for want of a sound device.
    std::string problem;      ///< If not, why, as a sentence.
};

/// Finds sounds and plays them, several at once. Any thread.
class SoundPlayer {
public:
    using Completion = std::function<void(const SoundOutcome &outcome)>;

    virtual ~SoundPlayer() = default;

    /// The sound that the desktop's sound theme or, failing that, the program has under the name.
    /// "Hero" is the program's own.
    [[nodiscard]] virtual std::optional<Sound> soundNamed(const std::string &name) const = 0;

    /// The sound in a file, given as a file URL or a path; none if there is no file or it holds no sound.
    [[nodiscard]] virtual std::optional<Sound> soundAt(const std::string &fileURLOrPath) const = 0;

    /// Begins to play and returns at once. The completion is called once, on the main thread, unless the
    /// application ends before. A sound that is turned off has finished at once.
    virtual void play(const Sound &sound, Completion completion) = 0;
};

} // namespace velmar
