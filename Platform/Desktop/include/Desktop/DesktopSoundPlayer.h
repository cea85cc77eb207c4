#pragma once

#include <Interaction/SoundPlayer.h>

#include <Dispatch/MainQueue.h>

#include <memory>
#include <string>
#include <vector>

namespace velmar {

/// Plays each sound in its own process, which ends with the player. Must be created and destroyed on the main
/// thread; no other thread may use it during destruction.
class DesktopSoundPlayer final : public SoundPlayer {
public:
    /// Locations of sounds and of the player program.
    struct Places {
        std::vector<std::string> themes; ///< Directories of sound themes.
        std::string theme;               ///< Name of the user's theme.
        std::string locale;              ///< For example "de_DE".
        std::string ownSounds;           ///< Directory of the program's own sounds.
        std::string program;             ///< Path of velmar-sound.
    };

    /// Returns the places of the user and of the running program, whose own files are relative to the
    /// executable. Requires a QCoreApplication.
    [[nodiscard]] static Places placesOfProcess();

    /// The main queue must outlive the player.
    DesktopSoundPlayer(MainQueue &mainQueue, Places places);
    ~DesktopSoundPlayer() override;

    [[nodiscard]] std::optional<Sound> soundNamed(const std::string &name) const override;
    [[nodiscard]] std::optional<Sound> soundAt(const std::string &fileURLOrPath) const override;
    void play(const Sound &sound, Completion completion) override;

private:
    class Processes;
    MainQueue &mainQueue_;
    Places places_;
    std::shared_ptr<Processes> processes_;
};

} // namespace velmar
