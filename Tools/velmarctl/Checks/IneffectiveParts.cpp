#include <Checks/IneffectiveParts.h>

#include <Checks/DefinedVariables.h>

#include <Configuration/Configuration.h>
#include <Network/APIRequest/RequestBody.h>

#include <boost/unordered/unordered_flat_set.hpp>
#include <fmt/format.h>

#include <optional>
#include <string>
#include <utility>

namespace velmar {

namespace {

// Collects the names of custom triggers, compared like variable names.
struct CustomTriggers final : ValueVisitor {
    void visit(const VisitedValue &value) override {
        if (const auto *const custom = value.as<ActionTrigger::Custom>()) {
            names.insert(custom->name);
        }
    }

    boost::unordered_flat_set<std::string, VariableNameHash, VariableNameEqual> names;
};

class PartsVisitor final : public ValueVisitor {
public:
    explicit PartsVisitor(const CheckedFile &file) : configuration_(file.configuration) {
        configuration_.visitValues(file.root, customTriggers_);
    }

    void visit(const VisitedValue &value) override {
        const ValuePlace &place = value.place();
        if (const auto *const app = value.as<MonitorItem::App>()) {
            judgeApp(*app, place);
        } else if (const auto *const container = value.as<ContainerItem>()) {
            judgeContainer(*container, place);
        } else if (const auto *const button = value.as<ComponentItem::Button>()) {
            judgeTrigger(button->_trigger, place);
        } else if (const auto *const send = value.as<ActionItem::SendRequest>()) {
            judgeBody(*send->_request.rawValue(), send->_request.name().stringValue, place);
        } else if (const auto *const action =
                       value.as<ActionItem::DisplayNotification::NotificationAction>()) {
            judgeTrigger(action->_trigger, place);
        } else if (const auto *const update = value.as<ActionTrigger::VariableUpdate>()) {
            judgeUpdate(*update, place);
        }
    }

    [[nodiscard]] std::vector<UsageWarning> warnings() && { return std::move(warnings_); }

private:
    void judgeApp(const MonitorItem::App &app, const ValuePlace &place) {
        if (app._installer.rawValue() == MonitorItem::App::Installer::system &&
            app._packageIdentifier.rawValue().value_or("").empty()) {
            warnings_.push_back(warningAt(place,
                                          "Without 'Identifier' the installer 'System' does not see the "
                                          "application being downloaded"));
        }
    }

    void judgeContainer(const ContainerItem &container, const ValuePlace &place) {
        if (container._widthRatio.rawValue() == 0.0) {
            warnings_.push_back(warningAt(place, container._widthRatio.name().stringValue,
                                          "The container has no width, and nothing of it is seen"));
        }
    }

    template <class Key>
    void judgeTrigger(const Key &key, const ValuePlace &place) {
        const std::optional<std::string> name = key.rawValue();
        if (name && name->find("${") == std::string::npos && !customTriggers_.names.contains(*name)) {
            warnings_.push_back(
                warningAt(place, key.name().stringValue,
                          fmt::format("No set of 'ActionSets' has the trigger 'Custom({})'", *name)));
        }
    }

    void judgeUpdate(const ActionTrigger::VariableUpdate &update, const ValuePlace &place) {
        if (!isDefinedVariable(configuration_, update.variable)) {
            warnings_.push_back(
                warningAt(place, fmt::format("Nothing defines the variable '{}', so that it is never updated",
                                             update.variable)));
        }
    }

    // References in the body are not replaced: their values are known at run time only.
    void judgeBody(const APIRequestItem &request, std::string_view key, const ValuePlace &place) {
        const auto &body = request._body.rawValue();
        const auto &defaultApi = configuration_._apiRequests.rawValue()._defaultMDMApi.rawValue();
        const std::optional<MDMApi> api = request._api.rawValue() ? request._api.rawValue() : defaultApi;
        if (!body || !api) {
            return;
        }
        try {
            static_cast<void>(encodedBody(*body, encodingFormat(*api), request._body.codingPath()));
        } catch (const InvalidXMLBody &error) {
            warnings_.push_back(warningAt(
                place, key,
                fmt::format(
                    "{} The server '{}' takes a dictionary with one key, and names of elements as keys",
                    error.errorDescription(), rawString(*api))));
        }
    }

    const Configuration &configuration_;
    CustomTriggers customTriggers_;
    std::vector<UsageWarning> warnings_;
};

} // namespace

std::vector<UsageWarning> ineffectiveParts(const CheckedFile &file) {
    PartsVisitor visitor(file);
    file.configuration.visitValues(file.root, visitor);
    return std::move(visitor).warnings();
}

} // namespace velmar
