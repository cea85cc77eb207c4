#pragma once

#include <Actions/SlideWindowPresenter.h>
#include <Actions/SlidesActionManager.h>
#include <Interaction/AlertPresenter.h>
#include <Interaction/SimplePasteboard.h>
#include <Interaction/SoundPlayer.h>
#include <Interaction/UserNotifications.h>

#include <Dispatch/MainQueue.h>
#include <System/RunningApplications.h>

#include <functional>
#include <istream>
#include <string>

namespace velmar {

/// Receives a line about the effect of an action. Thread-safe.
using SayLine = std::function<void(const std::string &line)>;

/// Presents alerts on the terminal. An input line is the number of a button, counted from 1. Any other input,
/// including its end, selects the first button.
class TerminalAlertPresenter final : public AlertPresenter {
public:
    /// The queue and the input must outlive the presenter.
    TerminalAlertPresenter(MainQueue &mainQueue, std::istream &in, SayLine say);

    /// Accepts any readable regular file.
    [[nodiscard]] std::shared_ptr<const AlertIcon> icon(const std::string &path) const override;
    void present(Alert alert, Completion completion) override;
    std::size_t runModal(const Alert &alert) override;

private:
    MainQueue &mainQueue_;
    std::istream &in_;
    SayLine say_;
};

/// Reports the text instead of copying it.
class TerminalPasteboard final : public SimplePasteboard {
public:
    explicit TerminalPasteboard(SayLine say) : say_(std::move(say)) {}
    [[nodiscard]] bool setString(const std::string &text) override;

private:
    SayLine say_;
};

/// Reports the sound instead of playing it. Sound files must be readable; every name without a slash is
/// accepted.
class TerminalSoundPlayer final : public SoundPlayer {
public:
    /// The queue must outlive the player.
    TerminalSoundPlayer(MainQueue &mainQueue, SayLine say) : mainQueue_(mainQueue), say_(std::move(say)) {}
    [[nodiscard]] std::optional<Sound> soundNamed(const std::string &name) const override;
    [[nodiscard]] std::optional<Sound> soundAt(const std::string &fileURLOrPath) const override;
    void play(const Sound &sound, Completion completion) override;

private:
    MainQueue &mainQueue_;
    SayLine say_;
};

/// Reports the windows instead of opening and closing them.
class TerminalWindows final : public SlideWindowPresenter {
public:
    explicit TerminalWindows(SayLine say) : say_(std::move(say)) {}
    void open(std::shared_ptr<const ActionItems::OpenWindow> item) override;
    void close() override;

private:
    SayLine say_;
};

/// Reports the notification instead of showing it. The delegate is never called.
class TerminalUserNotifications final : public UserNotifications {
public:
    /// The queue must outlive this object.
    TerminalUserNotifications(MainQueue &mainQueue, SayLine say)
        : mainQueue_(mainQueue), say_(std::move(say)) {}
    void setDelegate(std::weak_ptr<UserNotificationsDelegate> /*delegate*/) override {}
    void add(UserNotification notification, Completion completion) override;

private:
    MainQueue &mainQueue_;
    SayLine say_;
};

/// Reports no application: sets of actions are run by the administrator, not by a trigger.
class NoRunningApplications final : public RunningApplications {
public:
    [[nodiscard]] std::unique_ptr<Observation> observe(Observer /*observer*/) override {
        return std::make_unique<Observation>();
    }
};

/// Reports the target slide instead of showing it.
class TerminalSlides final : public SlideNavigationObserver {
public:
    explicit TerminalSlides(SayLine say) : say_(std::move(say)) {}
    void navigateToIndex(std::int64_t index) override;
    void navigateByOffset(std::int64_t offset) override;

private:
    SayLine say_;
};

} // namespace velmar
