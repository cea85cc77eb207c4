#include <DoubtfulPaths.h>

#include <GuardedPaths.h>
#include <ItemVisitor.h>

#include <optional>
#include <string>
#include <utility>

namespace velmar {

namespace {

// The path to judge, if any.
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

class PathsVisitor final : public ItemVisitor {
public:
    explicit PathsVisitor(const IdentityAuthority &authority) : paths_(authority) {}

    void visitAppTermination(const AppTerminationSection &section, const ItemPlace &place) override {
        judge(section._incompleteInstallationScriptPath, place);
        judge(section._completeInstallationScriptPath, place);
    }

    void visitWindow(const WindowSection &section, const ItemPlace &place) override {
        judge(section._menuBarIconPath, place);
    }

    void visitMonitor(const MonitorItem &monitor, const ItemPlace &place) override {
        if (const auto *const app = std::get_if<MonitorItem::App>(&monitor.value)) {
            judge(app->_iconURL, place);
        }
    }

    void visitComponent(const ComponentItem &component, const ItemPlace &place) override {
        if (const auto *const image = std::get_if<ComponentItem::Image>(&component.value)) {
            judge(image->_url, place);
            judge(image->_lightModeURL, place);
            judge(image->_darkModeURL, place);
        } else if (const auto *const pdf = std::get_if<ComponentItem::PDF>(&component.value)) {
            judge(pdf->_fileURL, place);
        }
    }

    void visitAction(const ActionItem &action, const ItemPlace &place) override {
        if (const auto *const script = std::get_if<ActionItem::ExecuteScript>(&action.value)) {
            judge(script->_scriptPath, place);
        } else if (const auto *const alert = std::get_if<ActionItem::DisplayAlert>(&action.value)) {
            judge(alert->_iconPath, place);
        }
    }

    [[nodiscard]] std::vector<UsageWarning> warnings() && { return std::move(warnings_); }

private:
    template <class Key>
    void judge(const Key &key, const ItemPlace &place) {
        if (!key.wasGivenValueWhileDecoding()) {
            return;
        }
        const std::optional<std::string> path = pathOf(key.rawValue());
        if (auto fault = path ? paths_.fault(*path) : std::nullopt) {
            warnings_.push_back(place.warning(key.name().stringValue, *std::move(fault)));
        }
    }

    GuardedPaths paths_;
    std::vector<UsageWarning> warnings_;
};

} // namespace

std::vector<UsageWarning> doubtfulPaths(const PropertyListValue &file, const Configuration &configuration,
                                        const IdentityAuthority &authority) {
    PathsVisitor visitor(authority);
    visitItems(configuration, file, visitor);
    return std::move(visitor).warnings();
}

} // namespace velmar
