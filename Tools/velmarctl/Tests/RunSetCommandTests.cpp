#include "CommandLineTest.h"

#include <regex>

#include <sys/stat.h>

namespace velmar {
namespace {

class RunSetCommandTest : public CommandLineTest {
protected:
    // Returns the output of a set, without the durations.
    std::string runSet(std::string_view type, std::string_view actions, ExitStatus expected,
                       const std::string &input = {}, std::string_view further = {}) {
        const std::string file = write(document(fmt::format(
            "<key>General</key><dict><key>Variables</key><dict><key>NAME</key><string>Ann</string></dict></"
            "dict>"
            "<key>ActionSets</key><array><dict><key>Type</key><string>{}</string><key>Triggers</key><array>"
            "<string>Launch</string></array><key>Actions</key><array>{}</array>{}</dict></array>",
            type, actions, further)));
        ::chmod((directory_.path() + "/x.plist").c_str(), 0644);
        return std::regex_replace(run({"run-set", file, "0", "--var", "GIVEN=yes"}, expected, input),
                                  std::regex("[0-9.]+ ms"), "T");
    }

    static std::string action(std::string_view type, std::string_view keys, std::string_view condition = {}) {
        return fmt::format(
            "<dict><key>Type</key><string>{}</string>{}{}</dict>", type, keys,
            condition.empty() ? "" : fmt::format("<key>Condition</key><string>{}</string>", condition));
    }
    static std::string log(std::string_view message, std::string_view condition = {}) {
        return action("Log", fmt::format("<key>Message</key><string>{}</string>", message), condition);
    }
};

TEST_F(RunSetCommandTest, PrintsEachActionAsItRuns) {
    const std::string alert = action("DisplayAlert", "<key>Title</key><string>Sure?</string>"
                                                     "<key>Message</key><string>Hi ${NAME}</string>"
                                                     "<key>Style</key><string>Warning</string>"
                                                     "<key>ButtonsText</key><array><string>Yes</string>"
                                                     "<string>No</string></array>"
                                                     "<key>Variable</key><string>ANSWER</string>");
    EXPECT_EQ(runSet("Chained", alert + log("${ANSWER}, ${NAME}"), ExitStatus::succeeded, "2\n"),
              "0 DisplayAlert: started\n"
              "    alert: Sure?\n"
              "           Hi Ann\n"
              "           1: Yes\n"
              "           2: No\n"
              "           answered: No\n"
              "    info: Successfully updated a variable [ ANSWER: 'No' ]\n"
              "0 DisplayAlert: succeeded after T\n"
              "1 Log: started\n"
              "    info: No, Ann\n"
              "1 Log: succeeded after T\n"
              "The set ran to its end after T.\n");
}

TEST_F(RunSetCommandTest, SaysWhereASetStops) {
    const std::string skipped = log("x", "NAME == \"Bo\"");
    const struct {
        const char *type;
        std::string actions;
        ExitStatus status;
        const char *output;
    } cases[] = {
        {"Chained", skipped + log("y"), ExitStatus::refused,
         "0 Log: started\n0 Log: not run, for its condition\nThe set stopped before its end after "
         "T.\n"},
        {"Parallel", skipped + log("y"), ExitStatus::refused,
         "0 Log: started\n0 Log: not run, for its condition\n1 Log: started\n    info: y\n"
         "1 Log: succeeded after T\nThe set stopped before its end after T.\n"},
        {"Chained", action("SaveInputs", "") + log("y"), ExitStatus::refused,
         "0 SaveInputs: started\n    error: "},
        {"Chained",
         action("DisplayNotification", "<key>Title</key><string>${NAME}</string><key>Actions</key><array>"
                                       "<dict><key>Title</key><string>Go</string><key>Trigger</key>"
                                       "<string>t</string></dict></array>"),
         ExitStatus::succeeded,
         "0 DisplayNotification: started\n    notification, not done here: Ann\n           Go: triggers t\n"
         "0 DisplayNotification: succeeded"},
        {"Parallel", "", ExitStatus::succeeded, "The set ran to its end after T.\n"},
        {"Chained", "", ExitStatus::refused, "The set stopped before its end after T.\n"},
    };
    for (const auto &[type, actions, status, output] : cases) {
        EXPECT_THAT(runSet(type, actions, status), testing::StartsWith(output)) << actions;
    }
    EXPECT_EQ(runSet("Parallel", log("y"), ExitStatus::refused, {},
                     "<key>Condition</key><string>NAME == \"Bo\"</string>"),
              "The set was not run, for its condition, after T.\n");
}

TEST_F(RunSetCommandTest, TakesASetThatIsThere) {
    const std::string file = write(document(""));
    EXPECT_EQ(run({"run-set", file, "0"}, ExitStatus::refused), "");
    EXPECT_EQ(complaints_, "There is no set 0: ActionSets has 0.\n");
}

} // namespace
} // namespace velmar
