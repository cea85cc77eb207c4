#include <Configuration/ActionTrigger.h>

#include <Configuration/ActionTriggerCoding.h>
#include <Configuration/RegularExpressionCoding.h>
#include <Configuration/Texts.h>

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace velmar {

namespace {

constexpr std::array<std::string_view, 7> forms{
    "Launch",           "Termination",         "NextButtonClick", "PreviousButtonClick",
    "Update(Variable)", "AppLaunch(BundleID)", "Custom(Name)"};

/// Returns the end of the line that contains a position. A line ends at a line feed, vertical tab, form feed,
/// carriage return, NEL, LS or PS.
std::size_t endOfLine(std::string_view text, std::size_t position) {
    std::size_t end = text.find_first_of("\n\v\f\r", position);
    for (const std::string_view separator : {"\xC2\x85", "\xE2\x80\xA8", "\xE2\x80\xA9"}) {
        end = std::min(end, text.find(separator, position));
    }
    return std::min(end, text.size());
}

/// Returns the text between the first opening bracket after a word and the last closing one of the same line,
/// if there is any. Equivalent to `(?<=WORD\().+(?=\))`, which takes quadratic time on long texts.
std::optional<std::string_view> payload(std::string_view text, std::string_view opening) {
    for (std::size_t found = text.find(opening); found != std::string_view::npos;) {
        const std::size_t begin = found + opening.size();
        const std::size_t end = endOfLine(text, begin);
        const std::size_t closing = text.substr(0, end).rfind(')');
        if (closing != std::string_view::npos && closing > begin) {
            return text.substr(begin, closing - begin);
        }
        // A later opening in this line has the same last bracket, so it encloses nothing either.
        found = text.find(opening, end);
    }
    return std::nullopt;
}

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
    const auto text = decoding.value.string();
    if (!text) {
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
    if (const auto variable = payload(*text, "Update(")) {
        return {ActionTrigger::VariableUpdate{std::string(*variable)}};
    }
    if (const auto pattern = payload(*text, "AppLaunch(")) {
        return {ActionTrigger::AppLaunch{compiled(*pattern, decoding)}};
    }
    if (const auto name = payload(*text, "Custom(")) {
        return {ActionTrigger::Custom{std::string(*name)}};
    }
    throwWrongType(decoding, plistType());
}

std::string Decodable<ActionTrigger>::plistType() {
    return possibleValuesText(forms);
}

ValueDescription Decodable<ActionTrigger>::describe(Descriptions & /*items*/) {
    return ValueDescription::text(
        "trigger",
        R"(Launch|Termination|NextButtonClick|PreviousButtonClick|[\s\S]*(Update|AppLaunch|Custom)\(.+\)[\s\S]*)");
}

} // namespace velmar
