#include <IneffectiveParts.h>

#include <DefinedVariables.h>
#include <ItemVisitor.h>

#include <Network/APIRequest/RequestBody.h>

#include <boost/unordered/unordered_flat_set.hpp>
#include <fmt/format.h>

#include <string>
#include <utility>

namespace velmar {

namespace {

class PartsVisitor final : public ItemVisitor {
public:
    explicit PartsVisitor(const Configuration &configuration) : configuration_(configuration) {
        for (const TriggeredActionSetItem &set : configuration._actionSets.rawValue()) {
            for (const ActionTrigger &trigger : set._triggers.rawValue()) {
                if (const auto *const custom = std::get_if<ActionTrigger::Custom>(&trigger.value)) {
                    customTriggers_.insert(custom->name);
                }
            }
        }
    }

    void visitMonitor(const MonitorItem &monitor, const ItemPlace &place) override {
        const auto *const app = std::get_if<MonitorItem::App>(&monitor.value);
        if (app != nullptr && app->_installer.rawValue() == MonitorItem::App::Installer::system &&
            app->_packageIdentifier.rawValue().value_or("").empty()) {
            warnings_.push_back(place.warning(
                "Without 'Identifier' the installer 'System' does not see the application being downloaded"));
        }
    }

    void visitContainer(const ContainerItem &container, const ItemPlace &place) override {
        if (container._widthRatio.rawValue() == 0.0) {
            warnings_.push_back(place.warning(container._widthRatio.name().stringValue,
                                              "The container has no width, and nothing of it is seen"));
        }
    }

    void visitComponent(const ComponentItem &component, const ItemPlace &place) override {
        const auto *const button = std::get_if<ComponentItem::Button>(&component.value);
        if (button != nullptr && button->_trigger.rawValue()) {
            judgeTrigger(*button->_trigger.rawValue(), button->_trigger.name().stringValue, place);
        }
    }

    void visitAction(const ActionItem &action, const ItemPlace &place) override {
        if (const auto *const send = std::get_if<ActionItem::SendRequest>(&action.value)) {
            judgeBody(*send->_request.rawValue(), send->_request.name().stringValue, place);
        }
    }

    void visitNotificationAction(const ActionItem::DisplayNotification::NotificationAction &item,
                                 const ItemPlace &place) override {
        judgeTrigger(item._trigger.rawValue(), item._trigger.name().stringValue, place);
    }

    void visitTrigger(const ActionTrigger &trigger, const ItemPlace &place) override {
        const auto *const update = std::get_if<ActionTrigger::VariableUpdate>(&trigger.value);
        if (update != nullptr && !isDefinedVariable(configuration_, update->variable)) {
            warnings_.push_back(place.warning(fmt::format(
                "Nothing defines the variable '{}', so that it is never updated", update->variable)));
        }
    }

    [[nodiscard]] std::vector<UsageWarning> warnings() && { return std::move(warnings_); }

private:
    void judgeTrigger(const std::string &name, std::string_view key, const ItemPlace &place) {
        if (name.find("${") == std::string::npos && !customTriggers_.contains(name)) {
            warnings_.push_back(
                place.warning(key, fmt::format("No set of 'ActionSets' has the trigger 'Custom({})'", name)));
        }
    }

    // Of the body as the file has it: values of variables may spoil it still.
    void judgeBody(const APIRequestItem &request, std::string_view key, const ItemPlace &place) {
        const auto &body = request._body.rawValue();
        const auto &defaultApi = configuration_._apiRequests.rawValue()._defaultMDMApi.rawValue();
        const std::optional<MDMApi> api = request._api.rawValue() ? request._api.rawValue() : defaultApi;
        if (!body || !api) {
            return;
        }
        try {
            static_cast<void>(encodedBody(*body, encodingFormat(*api), request._body.codingPath()));
        } catch (const InvalidXMLBody &error) {
            warnings_.push_back(place.warning(
                key, fmt::format(
                         "{} The server '{}' takes a dictionary with one key, and names of elements as keys",
                         error.errorDescription(), rawString(*api))));
        }
    }

    const Configuration &configuration_;
    // Names equal each other as those of variables do.
    boost::unordered_flat_set<std::string, VariableNameHash, VariableNameEqual> customTriggers_;
    std::vector<UsageWarning> warnings_;
};

} // namespace

std::vector<UsageWarning> ineffectiveParts(const PropertyListValue &file,
                                           const Configuration &configuration) {
    PartsVisitor visitor(configuration);
    visitItems(configuration, file, visitor);
    return std::move(visitor).warnings();
}

} // namespace velmar
