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

/// A fake that records played sounds; the test ends them. Thread-safe once `named` and `files` are set.
class TestSoundPlayer final : public SoundPlayer {
public:
    std::map<std::string, Sound> named = {{"Hero", {"/sounds/Hero"}}};
    std::set<std::string> files; ///< URLs or paths of sounds.

    /// Returns the paths of all played sounds, in the order of the calls.
    [[nodiscard]] std::vector<std::string> played() const {
        const std::lock_guard lock(mutex_);
        return played_;
    }

    /// Ends the oldest playing sound. Throws std::logic_error if there is none.
    void end(const SoundOutcome &outcome = {.hasFinished = true, .problem = {}}) {
        std::unique_lock lock(mutex_);
        if (playing_.empty()) {
            throw std::logic_error("no sound plays");
        }
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
