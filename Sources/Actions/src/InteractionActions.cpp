#include <Actions/InteractionActions.h>

#include <Actions/ActionContext.h>
#include <Actions/SlideWindowPresenter.h>
#include <Base/LoggerExtensions.h>
#include <Base/Services.h>
#include <Configuration/GeneralSection.h>
#include <Dispatch/MainQueue.h>
#include <Interaction/AlertPresenter.h>
#include <Interaction/SimplePasteboard.h>
#include <Interaction/SoundPlayer.h>
#include <Interaction/UserNotifications.h>
#include <Variables/ContentManager.h>

#include <fmt/format.h>

#include <cstddef>
#include <utility>

namespace velmar::Actions {

namespace {

constexpr std::string_view heroSound = "Hero";
constexpr std::string_view textOfOnlyButton = "OK";

Alert::Style alertStyle(ActionItem::DisplayAlert::Style style) {
    using Style = ActionItem::DisplayAlert::Style;
    switch (style) {
    case Style::informational:
        return Alert::Style::informational;
    case Style::warning:
        return Alert::Style::warning;
    case Style::critical:
        break;
    }
    return Alert::Style::critical;
}

} // namespace

void Log::perform() {
    Logger::info(actionItem()._message());
    complete(true);
}

void DisplayAlert::perform() {
    performOnMainThread([this] { makeAlert(); });
}

void DisplayAlert::makeAlert() {
    const ActionItem::DisplayAlert &item = actionItem();
    Alert alert{.style = alertStyle(item._style()),
                .messageText = item._title(),
                .informativeText = item._message(),
                .buttons = item._buttonsText()};
    if (const auto iconPath = item._iconPath()) {
        const bool isOnDisk = iconPath->isFileURL() || !iconPath->scheme();
        const std::string path = isOnDisk ? iconPath->path() : iconPath->text();
        alert.icon = isOnDisk ? services().alerts.icon(path) : nullptr;
        if (!alert.icon) {
            Logger::warning(
                [&] { return fmt::format(". DisplayAlert: could not retrieve icon at {}", path); });
        }
    }
    auto buttonsText = alert.buttons;
    services().alerts.present(std::move(alert), [self = keepingAlive(this),
                                                 buttonsText = std::move(buttonsText)](std::size_t button) {
        self->alertCompletionHandler(firstButtonResponse + static_cast<int>(button), buttonsText);
    });
}

void DisplayAlert::alertCompletionHandler(int response, const std::vector<std::string> &buttonsText) {
    if (const auto &variable = actionItem()._variable.rawValue()) {
        const auto button = static_cast<std::size_t>(response - firstButtonResponse);
        const std::string text =
            button < buttonsText.size() ? buttonsText[button] : std::string(textOfOnlyButton);
        services().variables->updateVariable(*variable, text, true);
    }
    complete(true);
}

void DisplayNotification::perform() {
    performOnMainThread([this] { show(); });
}

void DisplayNotification::show() {
    const ActionItem::DisplayNotification &item = actionItem();
    UserNotification notification{.title = item._title(),
                                  .body = item._body().value_or(std::string()),
                                  .soundName = item._soundName(),
                                  .actions = {}};
    for (const auto &action : item._actions()) {
        notification.actions.push_back({.identifier = action._trigger(), .title = action._title()});
    }
    services().notifications.add(std::move(notification),
                                 [self = keepingAlive(this)](const UserNotificationOutcome &outcome) {
                                     if (!outcome.isShown) {
                                         LoggerExtensions::error(LogSubject::actions, outcome.problem);
                                     } else if (!outcome.problem.empty()) {
                                         LoggerExtensions::warning(LogSubject::actions, outcome.problem);
                                     }
                                     self->complete(outcome.isShown);
                                 });
}

void PlaySound::perform() {
    play(actionItem()._soundNameOrFilePath());
}

void PlaySound::play(const std::string &soundNameOrFilePath) {
    SoundPlayer &sounds = services().sounds;
    auto sound = sounds.soundNamed(soundNameOrFilePath);
    if (!sound) {
        sound = sounds.soundAt(soundNameOrFilePath);
    }
    if (!sound) {
        LoggerExtensions::warning(LogSubject::actions, [&] {
            return fmt::format("Unable to read the termination sound at {}", soundNameOrFilePath);
        });
        sound = sounds.soundNamed(std::string(heroSound));
    }
    if (!sound) {
        LoggerExtensions::error(LogSubject::actions,
                                [] { return fmt::format("The sound '{}' is not installed", heroSound); });
        complete(false);
        return;
    }
    sounds.play(*sound, [self = keepingAlive(this)](const SoundOutcome &outcome) {
        if (!outcome.hasFinished) {
            LoggerExtensions::warning(LogSubject::actions, outcome.problem);
        }
        self->complete(outcome.hasFinished);
    });
}

void CopyToClipboard::perform() {
    performOnMainThread([this] { copy(); });
}

void CopyToClipboard::copy() {
    const std::string text = actionItem()._text();
    const bool isCopied = services().pasteboard.setString(text);
    if (!isCopied) {
        LoggerExtensions::error(LogSubject::actions, "The text could not be copied to the clipboard");
    }
    if (actionItem()._log()) {
        LoggerExtensions::info(LogSubject::actions,
                               [&] { return fmt::format("Text to copy to the clipboard: {}", text); });
    }
    complete(isCopied);
}

void OpenWindow::perform() {
    performOnMainThread([this] {
        services().windows.open({shared_from_this(), &actionItem()});
        complete(true);
    });
}

void CloseOpenedWindow::perform() {
    performOnMainThread([this] {
        services().windows.close();
        complete(true);
    });
}

void NavigateToSlide::perform() {
    using Jump = ActionItem::NavigateToSlide::Jump;
    const Jump jump = actionItem().jump();
    if (const auto *const index = std::get_if<Jump::Index>(&jump.value)) {
        context().slides->navigateToIndex(index->index);
    } else {
        context().slides->navigateByOffset(std::get<Jump::Offset>(jump.value).offset);
    }
    complete(true);
}

void UpdateVariable::perform() {
    const std::string &name = actionItem()._variable.rawValue();
    if (enumValue<GeneralSection::Placeholders>(bareVariableName(name))) {
        LoggerExtensions::warning(LogSubject::actions,
                                  "Updating placeholders with the 'UpdateVariable' action is not allowed");
        complete(false);
        return;
    }
    services().variables->updateVariable(name, actionItem()._newValue(), true);
    complete(true);
}

} // namespace velmar::Actions
