#include "CommandLineTest.h"

#include <sys/stat.h>

namespace velmar {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class EvalCommandTest : public CommandLineTest {
protected:
    // Returns the output followed by the errors.
    std::string eval(std::vector<std::string> arguments, ExitStatus expected = ExitStatus::succeeded,
                     const std::string &input = {}) {
        arguments.insert(arguments.begin(), "eval");
        const std::string output = run(std::move(arguments), expected, input);
        return complaints_.empty() ? output : output + complaints_;
    }

    // Returns a file with variables, each given as NAME=VALUE, and conditions.
    std::string configuration(std::vector<std::string> variables, std::vector<std::string> conditions = {}) {
        return write(document(fmt::format("<key>General</key><dict><key>Variables</key><dict>{}</dict></dict>"
                                          "<key>Conditions</key><dict>{}</dict>",
                                          entries(variables), entries(conditions))));
    }

private:
    static std::string entries(const std::vector<std::string> &assignments) {
        std::string keys;
        for (const std::string &assignment : assignments) {
            const auto end = assignment.find('=');
            keys += fmt::format("<key>{}</key><string>{}</string>\n", assignment.substr(0, end),
                                assignment.substr(end + 1));
        }
        return keys;
    }
};

TEST_F(EvalCommandTest, SaysWhatAConditionGives) {
    const struct {
        std::vector<std::string> arguments;
        ExitStatus status;
        const char *output;
    } rows[] = {
        {{"AB == 1", "--var", "AB=1"}, ExitStatus::succeeded, "true\n"},
        {{"--var", "AB=1", "AB == 2"}, ExitStatus::succeeded, "false\n"},
        {{"--var=AB=x=y", "--var", "CD=", "(AB == \"x=y\") && CD == \"\""}, ExitStatus::succeeded, "true\n"},
        {{"AB == \"[b,c]\"", "--var", "AB=[b,c]"}, ExitStatus::succeeded, "true\n"},
        {{"AB", "--var", "=x", "--var", "AB=false", "--var", "AB=true"}, ExitStatus::succeeded, "true\n"},
        {{""}, ExitStatus::refused, "The expression should not be empty\n"},
        {{"AB == 1"}, ExitStatus::refused, "Undefined variable: AB\n"},
        {{"AB \x1b\n == 1"}, ExitStatus::refused, "Incorrect element in the expression: \" \\x1b\n     \"\n"},
    };
    for (const auto &[arguments, status, output] : rows) {
        EXPECT_EQ(eval(arguments, status), output) << arguments[0];
    }
}

TEST_F(EvalCommandTest, TakesVariablesAndConditionsOfAConfiguration) {
    const std::string file =
        configuration({"COUNT=5", "NAME=${COUNT}"}, {"MANY=COUNT &gt; 3", "RAW=NAME == \"${COUNT}\""});
    const struct {
        std::vector<std::string> arguments;
        const char *output;
    } cases[] = {
        {{"COUNT == 5 && MANY"}, "true\n"},
        {{"RAW == true"}, "true\n"}, // Values are compared literally.
        {{"MANY", "--var", "COUNT=2"}, "false\n"},
        {{"MANY", "--var", "MANY=true", "--var", "COUNT=none"}, "true\n"},
    };
    for (const auto &each : cases) {
        std::vector<std::string> arguments{"--config", file, "--no-admission"};
        arguments.insert(arguments.end(), each.arguments.begin(), each.arguments.end());
        EXPECT_EQ(eval(arguments), each.output) << each.arguments[0];
    }
    EXPECT_EQ(eval({"RAW", "--config", file, "--no-admission", "--var", "COUNT=x"}, ExitStatus::refused),
              "Conditions.MANY: The types of the two operands mistmatch\n");
    EXPECT_EQ(eval({"USER_NAME == \"x\"", "--config", file, "--no-admission"}, ExitStatus::refused),
              "Undefined variable: USER_NAME\n");
}

TEST_F(EvalCommandTest, TellsWhyAConfigurationIsRefused) {
    ASSERT_EQ(::chmod(configuration({"AB=true"}).c_str(), 0646), 0);
    const std::string file = directory_.path("x.plist");
    EXPECT_THAT(eval({"AB", "--config", file}, ExitStatus::refused), StartsWith("x.plist: error: "));
    EXPECT_EQ(eval({"AB", "--config", file, "--no-admission"}), "true\n");
    for (const std::string &missing : {directory_.path("none"), std::string()}) {
        EXPECT_THAT(eval({"AB", "--config", missing}, ExitStatus::refused), HasSubstr("file is missing"));
    }
}

TEST_F(EvalCommandTest, ExplainsInAlignedColumns) {
    const std::string file = configuration({"COUNT=2", "CITY=日本", "NAME=" + std::string(50, 'x')},
                                           {"LAB=NAME ~= \"lab\"", "e\u0301t\u00e9=COUNT &gt; 1"});
    const std::string name = std::string(39, 'x') + "…";
    const std::string expression = "CITY == \"日本\" && (COUNT >= 3 || LAB == true) && NAME != GONE";
    EXPECT_EQ(eval({"--explain", "--config", file, "--no-admission", expression}),
              "Named conditions\n"
              "  LAB             false  NAME ~= \"lab\"; NAME: '" +
                  name +
                  "'\n"
                  "  e\u0301t\u00e9             true   COUNT > 1; COUNT: '2'\n"
                  "Expression\n"
                  "  CITY == '日本'  true   CITY: '日本'\n"
                  "  &&\n"
                  "  (\n"
                  "    COUNT >= 3.0  false  COUNT: '2'\n"
                  "    ||\n"
                  "    LAB == true   false  LAB: false, a named condition\n"
                  "  )\n"
                  "  &&\n"
                  "  NAME != GONE    false  NAME: '" +
                  name +
                  "', GONE: undefined\n"
                  "\n"
                  "false\n");
}

TEST_F(EvalCommandTest, ExplainsWhereAnEvaluationEnds) {
    EXPECT_EQ(eval({"--explain", "AB && CD > 1 && EF", "--var", "AB=true", "--var", "CD=\x1b\n"},
                   ExitStatus::refused),
              "Expression\n"
              "  AB        true    AB: 'true'\n"
              "  &&\n"
              "  CD > 1.0  failed  CD: '\\x1b\\x0a'\n"
              "  &&\n"
              "  EF        -       EF: undefined\n"
              "\n"
              "The types of the two operands mistmatch\n");
    const std::string file = configuration({"AB=x"}, {"BAD=AB &gt; 1"});
    EXPECT_EQ(eval({"--explain", "AB == \"x\"", "--config", file, "--no-admission"}, ExitStatus::refused),
              "Named conditions\n"
              "  BAD        failed  AB > 1; AB: 'x'; The types of the two operands mistmatch\n"
              "Expression\n"
              "  AB == 'x'  -       AB: 'x'\n"
              "\n"
              "Conditions.BAD: The types of the two operands mistmatch\n");
}

TEST_F(EvalCommandTest, AnswersEveryLine) {
    const struct {
        std::string line, answer;
    } rows[] = {
        {R"({"expression": "AB == \"1\"", "variables": {"AB": "1"}})", R"({"value": true})"},
        {R"({"expression": "AB == \"1\""})", R"({"value": false})"}, // The variable is unset again.
        {"{\"expression\": \"FILE && VAR\"}\r", R"({"value": true})"},
        {R"({"expression": "FILE", "variables": {"FILE": "false", "": "", "\u0000": "\u001b"}})",
         R"({"value": false})"},
        {R"({"expression": "GONE"})", R"({"error": "Undefined variable: GONE"})"},
        {R"({"expression": "\u00e9 AB"})",
         R"({"error": "Incorrect element in the expression: \"\u00e9 \""})"},
        {"nonsense", R"({"error": "The line is not JSON: )"},
        {std::string(100'000, '['), R"({"error": "The line is not JSON: )"},
        {"{\"expression\": \"\xff\"}", R"({"error": "The line is not UTF-8"})"},
        {"[]", R"({"error": "The line is not an object"})"},
        {R"({"expression": 1})", R"({"error": "The member 'expression' is not a text"})"},
        {R"({"expression": "AB", "variables": []})",
         R"({"error": "The member 'variables' is not an object"})"},
        {R"({"expression": "AB", "variables": {"AB": 1}})",
         R"({"error": "The variable 'AB' is not a text"})"},
        {R"({"expression": "AB", "variabels": {}})", R"({"error": "Unknown member 'variabels'"})"},
        {std::string((std::size_t{16} << 20U) + 1, 'x'),
         R"({"error": "The line is longer than 16777216 bytes"})"},
        {R"({"expression": "AB == \")" + std::string(100'000, 'x') + R"(\""})", R"({"value": false})"},
        {R"({"expression": "AB"})",
         R"({"error": "Invalid elements chaining: Trying)"}, // Without a line feed.
    };
    std::string input;
    for (const auto &row : rows) {
        input += (input.empty() ? "" : "\n") + row.line;
    }
    const std::string file = configuration({"FILE=true", "AB=x", "VAR=false"});
    std::istringstream answers(eval({"--batch", "--config", file, "--no-admission", "--var", "VAR=true"},
                                    ExitStatus::succeeded, input));
    EXPECT_THAT(complaints_, IsEmpty());
    std::string answer;
    for (const auto &row : rows) {
        ASSERT_TRUE(std::getline(answers, answer));
        EXPECT_THAT(answer, StartsWith(row.answer)) << row.line.substr(0, 100);
    }
    EXPECT_FALSE(std::getline(answers, answer));
}

} // namespace
} // namespace velmar
