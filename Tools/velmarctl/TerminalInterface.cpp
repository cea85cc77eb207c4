#include <TerminalInterface.h>

#include <Foundation/URL.h>

#include <fmt/format.h>

#include <charconv>
#include <filesystem>
#include <system_error>
#include <utility>

#include <unistd.h>

namespace velmar {

namespace {

bool isReadableFile(const std::string &path) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored) && ::access(path.c_str(), R_OK) == 0;
}

} // namespace

TerminalAlertPresenter::TerminalAlertPresenter(MainQueue &mainQueue, std::istream &in, SayLine say)
    : mainQueue_(mainQueue), in_(in), say_(std::move(say)) {}

std::shared_ptr<const AlertIcon> TerminalAlertPresenter::icon(const std::string &path) const {
    return isReadableFile(path) ? std::make_shared<const AlertIcon>() : nullptr;
}

void TerminalAlertPresenter::present(Alert alert, Completion completion) {
    mainQueue_.async([this, alert = std::move(alert), completion = std::move(completion)] {
        completion(runModal(alert));
    });
}

std::size_t TerminalAlertPresenter::runModal(const Alert &alert) {
    auto buttons = alert.buttons;
    if (buttons.empty()) {
        buttons.emplace_back("OK");
    }
    say_(fmt::format("alert: {}", alert.messageText));
    if (!alert.informativeText.empty()) {
        say_(fmt::format("       {}", alert.informativeText));
    }
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        say_(fmt::format("       {}: {}", i + 1, buttons[i]));
    }
    std::string line;
    std::size_t number = 0;
    if (std::getline(in_, line)) {
        std::from_chars(line.data(), line.data() + line.size(), number);
    }
    const std::size_t button = number >= 1 && number <= buttons.size() ? number - 1 : 0;
    say_(fmt::format("       answered: {}", buttons[button]));
    return button;
}

bool TerminalPasteboard::setString(const std::string &text) {
    say_(fmt::format("clipboard, not done here: {}", text));
    return true;
}

std::optional<Sound> TerminalSoundPlayer::soundNamed(const std::string &name) const {
    return name.find('/') == std::string::npos ? std::optional(Sound{name}) : std::nullopt;
}

std::optional<Sound> TerminalSoundPlayer::soundAt(const std::string &fileURLOrPath) const {
    const auto url = URL::fromString(fileURLOrPath);
    const std::string path = url && url->isFileURL() ? url->path() : fileURLOrPath;
    return isReadableFile(path) ? std::optional(Sound{path}) : std::nullopt;
}

void TerminalSoundPlayer::play(const Sound &sound, Completion completion) {
    say_(fmt::format("sound, neither looked for nor done here: {}", sound.path));
    mainQueue_.async(
        [completion = std::move(completion)] { completion({.hasFinished = true, .problem = {}}); });
}

void TerminalWindows::open(std::shared_ptr<const ActionItems::OpenWindow> item) {
    say_(fmt::format("window, not opened here: {} x {} points", item->_size()._width(),
                     item->_size()._height()));
}

void TerminalWindows::close() {
    say_("window, not closed here");
}

void TerminalUserNotifications::add(UserNotification notification, Completion completion) {
    say_(fmt::format("notification, not done here: {}", notification.title));
    if (!notification.body.empty()) {
        say_(fmt::format("       {}", notification.body));
    }
    for (const UserNotification::Action &action : notification.actions) {
        say_(fmt::format("       {}: triggers {}", action.title, action.identifier));
    }
    mainQueue_.async([completion = std::move(completion)] { completion({.isShown = true, .problem = {}}); });
}

void TerminalSlides::navigateToIndex(std::int64_t index) {
    say_(fmt::format("slide, not done here: {}", index));
}

void TerminalSlides::navigateByOffset(std::int64_t offset) {
    say_(fmt::format("slide, not done here: {:+}", offset));
}

} // namespace velmar
