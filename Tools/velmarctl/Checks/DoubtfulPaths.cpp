#include <Checks/DoubtfulPaths.h>

#include <Checks/GuardedPaths.h>

#include <Configuration/Configuration.h>

#include <optional>
#include <string>
#include <utility>

namespace velmar {

namespace {

// Returns the path to judge; absent if it contains "${".
std::optional<std::string> pathOf(const std::string &path) {
    return path.find("${") == std::string::npos ? std::optional(path) : std::nullopt;
}
std::optional<std::string> pathOf(const URL &url) {
    if (url.hasPlaceholders() || (url.scheme() && !url.isFileURL())) {
        return std::nullopt;
    }
    return url.path();
}
template <class T>
std::optional<std::string> pathOf(const std::optional<T> &path) {
    return path ? pathOf(*path) : std::nullopt;
}

class PathsVisitor final : public ValueVisitor {
public:
    explicit PathsVisitor(const IdentityAuthority &authority) : paths_(authority) {}

    void visit(const VisitedValue &value) override {
        const ValuePlace &place = value.place();
        if (const auto *const section = value.as<AppTerminationSection>()) {
            judge(section->_incompleteInstallationScriptPath, place);
            judge(section->_completeInstallationScriptPath, place);
        } else if (const auto *const window = value.as<WindowSection>()) {
            judge(window->_menuBarIconPath, place);
        } else if (const auto *const app = value.as<MonitorItem::App>()) {
            judge(app->_iconURL, place);
        } else if (const auto *const image = value.as<ComponentItem::Image>()) {
            judge(image->_url, place);
            judge(image->_lightModeURL, place);
            judge(image->_darkModeURL, place);
        } else if (const auto *const pdf = value.as<ComponentItem::PDF>()) {
            judge(pdf->_fileURL, place);
        } else if (const auto *const script = value.as<ActionItem::ExecuteScript>()) {
            judge(script->_scriptPath, place);
        } else if (const auto *const alert = value.as<ActionItem::DisplayAlert>()) {
            judge(alert->_iconPath, place);
        }
    }

    [[nodiscard]] std::vector<UsageWarning> warnings() && { return std::move(warnings_); }

private:
    template <class Key>
    void judge(const Key &key, const ValuePlace &item) {
        if (!key.wasGivenValueWhileDecoding()) {
            return;
        }
        const std::optional<std::string> path = pathOf(key.rawValue());
        if (auto fault = path ? paths_.fault(*path) : std::nullopt) {
            warnings_.push_back(warningAt(item, key.name().stringValue, *std::move(fault)));
        }
    }

    GuardedPaths paths_;
    std::vector<UsageWarning> warnings_;
};

} // namespace

std::vector<UsageWarning> doubtfulPaths(const CheckedFile &file) {
    PathsVisitor visitor(file.authority);
    file.configuration.visitValues(file.root, visitor);
    return std::move(visitor).warnings();
}

} // namespace velmar
