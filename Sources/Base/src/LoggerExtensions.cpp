#include <Base/LoggerExtensions.h>

#include <fmt/core.h>

namespace velmar {

std::string_view symbolOf(LogSubject subject) {
    switch (subject) {
    case LogSubject::configuration:
        return "📄";
    case LogSubject::variables:
        return "🔤";
    case LogSubject::actions:
        return "🎬";
    case LogSubject::monitors:
        return "📡";
    case LogSubject::installationLogParser:
        return "🔍";
    case LogSubject::requests:
        return "🌐";
    case LogSubject::window:
        return "🪟";
    case LogSubject::termination:
        return "🚪";
    }
    return {};
}

namespace LoggerExtensions {

std::string withSymbol(LogSubject about, std::string_view message) {
    return fmt::format("{} {}", symbolOf(about), message);
}

void registeredVariableUsesOtherVariables(std::string_view variable, std::string_view path,
                                          const SourceLocation &where) {
    Logger::warning(
        [&] {
            return fmt::format("The value of the variable '{}' at '{}' uses other variables, which is not "
                               "allowed outside of 'General.Variables'.",
                               variable, path);
        },
        {}, where);
}

} // namespace LoggerExtensions

} // namespace velmar
