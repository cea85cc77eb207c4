#pragma once

#include <Actions/Action.h>

#include <string>
#include <vector>

namespace velmar {

/// The actions that speak to the user, move the session on or change its state, as they run.
namespace Actions {

/// Logs its message.
class Log final : public ActionOf<ActionItem::Log> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
};

/// Shows an alert and, once it is answered, puts the chosen button's text in the action's variable.
class DisplayAlert final : public ActionOf<ActionItem::DisplayAlert> {
public:
    using ActionOf::ActionOf;

    /// What the alert answers with for its first button; each further one counts one more.
    static constexpr int firstButtonResponse = 1000;

private:
    void perform() override;
    void makeAlert();
    void alertCompletionHandler(int response, const std::vector<std::string> &buttonsText);
};

/// Shows a notification. It has ended when that is on show; an answer is fired as a custom trigger.
class DisplayNotification final : public ActionOf<ActionItem::DisplayNotification> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
    void show();
};

/// Plays the sound of a name or file; where there is none, the program's own. Ends with the sound.
class PlaySound final : public ActionOf<ActionItem::PlaySound> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
    void play(const std::string &soundNameOrFilePath);
};

/// Copies its text.
class CopyToClipboard final : public ActionOf<ActionItem::CopyToClipboard> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
    void copy();
};

/// Shows a slide in a window of its own.
class OpenWindow final : public ActionOf<ActionItem::OpenWindow> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
};

/// Closes that window, if there is one.
class CloseOpenedWindow final : public ActionOf<ActionItem::CloseOpenedWindow> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
};

/// Asks for a slide. It has ended when that is asked, not when the slide is on show.
class NavigateToSlide final : public ActionOf<ActionItem::NavigateToSlide> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
};

/// Gives a variable a value.
class UpdateVariable final : public ActionOf<ActionItem::UpdateVariable> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
};

} // namespace Actions

} // namespace velmar
