#include "CommandLineTest.h"

namespace velmar {
namespace {

class UsageWarningTest : public CommandLineTest {
protected:
    // Returns the warnings of a file whose variables and conditions are dictionaries of these entries. Both
    // begin on line 2, and the component's keys are on the last line.
    std::string warnings(std::string_view variables, std::string_view conditions,
                         std::string_view component = {}, std::string_view keys = {}) {
        return check(document(fmt::format("<key>General</key><dict><key>Variables</key><dict>{}</dict></dict>"
                                          "<key>Conditions</key><dict>{}</dict>{}",
                                          variables, conditions, keys),
                              component),
                     ExitStatus::succeeded);
    }

    static std::string entry(std::string_view key, std::string_view text) {
        return fmt::format("<key>{}</key><string>{}</string>", key, text);
    }
};

TEST_F(UsageWarningTest, NamesWhatNothingUses) {
    EXPECT_EQ(warnings(entry("AB", "1") + "\n" + entry("CD", "2"), "\n" + entry("EF", "AB == 1")),
              "x.plist:3: warning: General.Variables.CD: Nothing uses the variable 'CD'\n"
              "x.plist:4: warning: Conditions.EF: Nothing uses the condition 'EF'\n");
}

TEST_F(UsageWarningTest, CountsEveryUse) {
    const struct {
        std::string component, keys;
    } uses[] = {
        {entry("Condition", "NAME == 1"), ""},
        {"", "<key>Window</key><dict>" + entry("OnScreen", "Simple") + entry("Title", "${NAME}") + "</dict>"},
        {"", "<key>Later</key><array><string>!(NAME-1==2)</string></array>"},
        {"", "<key>Later</key><array><dict><key>NAME</key><true/></dict></array>"},
        {"<key>Later</key><string>${NAME}</string>", ""},
    };
    for (const auto &[component, keys] : uses) {
        EXPECT_THAT(warnings(entry("NAME", "1"), "", component, keys),
                    testing::Not(testing::HasSubstr("Nothing")))
            << component << keys;
    }
    EXPECT_THAT(warnings(entry("caf\u00e9 1", "1"), "", entry("Later", "cafe\u0301 1")),
                testing::Not(testing::HasSubstr("Nothing")));
    EXPECT_EQ(warnings(entry("AB", "${CD}") + entry("CD", "1"), entry("EF", "AB == \"1\""),
                       entry("Condition", "EF")),
              "");
}

TEST_F(UsageWarningTest, DoubtsConditionsThatFail) {
    const std::string variables =
        entry("TEXT", "some") + entry("COUNT", "0x1F") + entry("FLAG", "false") + entry("OTHER", "${COUNT}");
    const struct {
        const char *condition, *message; // The component's condition; no message if it is good.
    } conditions[] = {
        {"COUNT &gt; 3 &amp;&amp; FLAG &amp;&amp; FLAG == true &amp;&amp; READY == false || READY", nullptr},
        {"TEXT == \"3\" || TEXT == COUNT || 3 == COUNT || OTHER ~= \"$\"", nullptr},
        {"OTHER == 3", "The variable 'OTHER' is compared with 3.0, and its value '${COUNT}' is not a number"},
        {"USER_NAME &lt;: 3", "The comparison with '<:' and 3.0 fails with every value of 'USER_NAME'"},
        {"true &gt; READY", "The comparison with '>' and true fails with every value of 'READY'"},
        {"TEXT &gt; 3", "The variable 'TEXT' is compared with 3.0, and its value 'some' is not a number"},
        {"3 &gt; FLAG", "The variable 'FLAG' is compared with 3.0, and its value 'false' is not a number"},
        {"COUNT == true",
         "The variable 'COUNT' is compared with true, and its value '0x1F' is not true or false"},
        {"( TEXT )", "The variable 'TEXT' stands alone, and its value 'some' is not true or false"},
        {"READY == 1", "The named condition 'READY' is true or false, and is compared with 1.0"},
        {"\"yes\" == READY", "The named condition 'READY' is true or false, and is compared with 'yes'"},
    };
    for (const auto &[condition, message] : conditions) {
        const std::string use =
            entry("Text", "${TEXT}${OTHER}${FLAG}${COUNT}") + "\n" + entry("Condition", condition);
        const std::string place = "x.plist:7: warning: Slides.0.Containers.0.Components.0.Condition: ";
        std::string file =
            document("<key>General</key><dict><key>Variables</key><dict>" + variables +
                         "</dict></dict><key>Conditions</key><dict>" + entry("READY", "FLAG") + "</dict>",
                     use);
        const std::string output = check(file, ExitStatus::succeeded);
        if (message == nullptr) {
            EXPECT_THAT(output, testing::Not(testing::HasSubstr(place))) << condition;
        } else {
            EXPECT_THAT(output, testing::EndsWith(place + message + "\n")) << condition;
        }
    }
}

TEST_F(UsageWarningTest, DoubtsNamedConditionsThatNameOthers) {
    EXPECT_EQ(
        warnings(entry("BOTH", "true"),
                 "\n" + entry("FIRST", "BOTH") + "\n" + entry("SECOND", "FIRST &amp;&amp; BOTH") +
                     entry("BOTH", "FIRST"),
                 entry("Condition", "SECOND")),
        "x.plist:4: warning: Conditions.SECOND: 'FIRST' is a named condition, and named conditions do not "
        "see each other: here it is an undefined variable\n"
        "x.plist:4: warning: Conditions.BOTH: 'FIRST' is a named condition, and named conditions do not "
        "see each other: here it is an undefined variable\n");
}

} // namespace
} // namespace velmar
