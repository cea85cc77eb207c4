#pragma once

#include <Interaction/SoundPlayer.h>

#include <deque>
#include <map>
#include <mutex>
#include <set>
#include <stdexcept>
#include <utility>
#include <vector>

namespace velmar {

/// Records what is played and ends it when the test says so. The members are set before it is used.
class TestSoundPlayer final : public SoundPlayer {
public:
    std::map<std::string, Sound> named = {{"Hero", {"/sounds/Hero"}}};
    std::set<std::string> files; ///< URLs or paths that hold a sound.

    /// The paths of the sounds that were played, in the order of asking.
    [[nodiscard]] std::vector<std::string> played() const {
        const std::lock_guard lock(mutex_);
        return played_;
    }

    /// Ends the sound that plays longest; throws std::logic_error if none does.
    void end(const SoundOutcome &outcome = {.hasFinished = true, .problem = {}}) {
        std::unique_lock lock(mutex_);
        if (playing_.empty())
            throw std::logic_error("no sound plays");
        const Completion completion = std::move(playing_.front());
        playing_.pop_front();
        lock.unlock();
        completion(outcome);
    }

    [[nodiscard]] std::optional<Sound> soundNamed(const std::string &name) const override {
        const auto found = named.find(name);
        return found == named.end() ? std::nullopt : std::optional(found->second);
    }
    [[nodiscard]] std::optional<Sound> soundAt(const std::string &fileURLOrPath) const override {
        return files.contains(fileURLOrPath) ? std::optional(Sound{fileURLOrPath}) : std::nullopt;
    }
    void play(const Sound &sound, Completion completion) override {
        const std::lock_guard lock(mutex_);
        played_.push_back(sound.path);
        playing_.push_back(std::move(completion));
    }

private:
    mutable std::mutex mutex_;
    std::vector<std::string> played_;
    std::deque<Completion> playing_;
};

} // namespace velmar
