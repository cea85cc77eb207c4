#pragma once

#include <Interaction/SoundPlayer.h>

#include <Dispatch/MainQueue.h>

#include <memory>
#include <string>
#include <vector>

namespace velmar {

/// Plays sounds, each in a process of its own, which ends with the player. Made and destroyed on the main
/// thread, when nobody uses it any more.
class DesktopSoundPlayer final : public SoundPlayer {
public:
    /// Where things are.
    struct Places {
        std::vector<std::string> themes; ///< Directories of sound themes.
        std::string theme;               ///< The one that the user has chosen.
        std::string locale;              ///< "de_DE".
        std::string ownSounds;           ///< The directory of the program's own sounds.
        std::string program;             ///< The path of velmar-sound.
    };

    /// Those of the user and of the running program, which finds its own beside itself. After the
    /// application is made.
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
