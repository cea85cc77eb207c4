#include <Extensions/LoggerExtensions.h>

#include <Support/RecordedLog.h>

#include <gtest/gtest.h>

namespace velmar {
namespace {

TEST(LoggerExtensions, PutTheSymbolOfTheSubjectBeforeTheMessage) {
    RecordedLog log;
    LoggerExtensions::info(LogSubject::installationLogParser, [] { return "Found"; });
    LoggerExtensions::error(LogSubject::window, "Lost", "[context]");
    EXPECT_EQ(log.lines(), (std::vector<std::string>{"info: 🔍 Found", "error: 🪟 Lost [context]"}));
}

TEST(LoggerExtensions, QuoteTheSectionOfVariablesUnlikeTheErrorOfThatName) {
    RecordedLog log;
    LoggerExtensions::registeredVariableUsesOtherVariables("NAME", "Slides.0");
    EXPECT_EQ(log.lines(),
              std::vector<std::string>{"warning: The value of the variable 'NAME' at 'Slides.0' uses "
                                       "other variables, which is not allowed outside of "
                                       "'General.Variables'."});
}

} // namespace
} // namespace velmar
