#include <Models/VelmarError.h>

#include <Extensions/LoggerExtensions.h>
#include <Support/RecordedLog.h>

#include <gtest/gtest.h>

namespace velmar {
namespace {

TEST(VelmarError, SaysWhichFilesAreAllowed) {
    EXPECT_EQ(VelmarError(VelmarError::IncorrectPermissionsOnConfigFile{"/a.plist"}).errorDescription(),
              R"(The configuration file at '/a.plist' has too much permissions and cannot be used.
Allowed cases:
- The 'user' is an 'admin' and is the only one to have the 'write' permission. Ex: '-rw-r--r--'.
- The 'group' is 'admin' or 'wheel' and is the only one to have the 'write' permissions. Ex: '-r--rw-r--'
- The 'user' and group are 'admin' (or group: 'wheel') and the 'other' user has no 'write' permission. Ex: '-rw-rw-r--.)");
}

// The two differ by the quotes.
TEST(VelmarError, TellsOfVariablesInVariablesInTheLogAndAsAnError) {
    const RecordedLog log;
    LoggerExtensions::registeredVariableUsesOtherVariables("NAME", "Slides[0]");
    EXPECT_EQ(log.lines(),
              std::vector<std::string>{
                  "warning: The value of the variable 'NAME' at 'Slides[0]' uses other variables, "
                  "which is not allowed outside of 'General.Variables'."});
    EXPECT_EQ(VelmarError(VelmarError::RegisteredVariableUsesOtherVariables{"NAME", "Slides[0]"})
                  .errorDescription(),
              "The value of the variable 'NAME' at 'Slides[0]' uses other variables, which is not allowed "
              "outside of "
              "General.Variables.");
}

} // namespace
} // namespace velmar
