#include <Configuration/ActionTrigger.h>

#include <Configuration/RegularExpressionCoding.h>
#include <Configuration/Texts.h>

#include <fmt/format.h>

#include <array>
#include <optional>
#include <string_view>

namespace velmar {

namespace {

constexpr std::array<std::string_view, 7> forms{
    "Launch",           "Termination",         "NextButtonClick", "PreviousButtonClick",
    "Update(Variable)", "AppLaunch(BundleID)", "Custom(Name)"};

/// The first text that stands between the opening bracket behind a word and the last closing one.
class Payload {
public:
    explicit Payload(std::string_view word) : expression_(fmt::format(R"((?<={}\().+(?=\)))", word)) {}

    [[nodiscard]] std::optional<std::string> in(const std::string &text) const {
        const auto match = expression_.firstMatch(text);
        return match ? std::optional(std::string(match->range().of(text))) : std::nullopt;
    }

private:
    RegularExpression expression_;
};

} // namespace

std::string ActionTrigger::text() const {
    struct Writer {
        std::string operator()(const VariableUpdate &update) const {
            return fmt::format("Update({})", update.variable);
        }
        std::string operator()(const AppLaunch &launch) const {
            return fmt::format("AppLaunch({})", launch.bundleIdentifier.pattern());
        }
        std::string operator()(const Custom &custom) const { return fmt::format("Custom({})", custom.name); }
        std::string operator()(Launch) const { return "Launch"; }
        std::string operator()(Termination) const { return "Termination"; }
        std::string operator()(PreviousButtonClick) const { return "PreviousButtonClick"; }
        std::string operator()(NextButtonClick) const { return "NextButtonClick"; }
    };
    return std::visit(Writer(), value);
}

ActionTrigger Decodable<ActionTrigger>::decode(const Decoding &decoding) {
    const std::string *const text = decoding.value.string();
    if (text == nullptr) {
        throwWrongType(decoding, plistType());
    }
    if (*text == "Launch") {
        return {ActionTrigger::Launch()};
    }
    if (*text == "Termination") {
        return {ActionTrigger::Termination()};
    }
    if (*text == "PreviousButtonClick") {
        return {ActionTrigger::PreviousButtonClick()};
    }
    if (*text == "NextButtonClick") {
        return {ActionTrigger::NextButtonClick()};
    }
    static const Payload update("Update");
    static const Payload appLaunch("AppLaunch");
    static const Payload custom("Custom");
    if (auto variable = update.in(*text)) {
        return {ActionTrigger::VariableUpdate{*std::move(variable)}};
    }
    if (const auto pattern = appLaunch.in(*text)) {
        return {ActionTrigger::AppLaunch{compiled(*pattern, decoding)}};
    }
    if (auto name = custom.in(*text)) {
        return {ActionTrigger::Custom{*std::move(name)}};
    }
    throwWrongType(decoding, plistType());
}

std::string Decodable<ActionTrigger>::plistType() {
    return possibleValuesText(forms);
}

ValueDescription Decodable<ActionTrigger>::describe(Descriptions & /*items*/) {
    return ValueDescription::text(
        "trigger",
        R"(Launch|Termination|NextButtonClick|PreviousButtonClick|.*(Update|AppLaunch|Custom)\(.+\).*)");
}

} // namespace velmar
