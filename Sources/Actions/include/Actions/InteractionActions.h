#pragma once

#include <Actions/Action.h>

#include <string>
#include <vector>

namespace velmar {

/// Runtime forms of the actions that address the user, navigate, or change variables.
namespace Actions {

/// Logs its message.
class Log final : public ActionOf<ActionItem::Log> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
};

/// Shows an alert and, once it is answered, stores the text of the chosen button in the action's variable.
class DisplayAlert final : public ActionOf<ActionItem::DisplayAlert> {
public:
    using ActionOf::ActionOf;

    /// Response code of the first button; the codes of further buttons are consecutive.
    static constexpr int firstButtonResponse = 1000;

private:
    void perform() override;
    void makeAlert();
    void alertCompletionHandler(int response, const std::vector<std::string> &buttonsText);
};

/// Shows a notification. Ends once the notification is shown or has failed. Each of its buttons is identified
/// by a custom trigger.
class DisplayNotification final : public ActionOf<ActionItem::DisplayNotification> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
    void show();
};

/// Plays the sound of a name or file, or the built-in sound if there is none. Ends with the sound.
class PlaySound final : public ActionOf<ActionItem::PlaySound> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
    void play(const std::string &soundNameOrFilePath);
};

/// Copies its text to the clipboard.
class CopyToClipboard final : public ActionOf<ActionItem::CopyToClipboard> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
    void copy();
};

/// Shows a slide in a separate window.
class OpenWindow final : public ActionOf<ActionItem::OpenWindow> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
};

/// Closes the window of OpenWindow, if it is open.
class CloseOpenedWindow final : public ActionOf<ActionItem::CloseOpenedWindow> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
};

/// Requests navigation to a slide. Ends once the request is passed on, not once the slide is shown.
class NavigateToSlide final : public ActionOf<ActionItem::NavigateToSlide> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
};

/// Sets a variable. Fails for the name of a placeholder.
class UpdateVariable final : public ActionOf<ActionItem::UpdateVariable> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
};

} // namespace Actions

} // namespace velmar
