#include "Outcome.h"

#include <Foundation/RegularExpression.h>

#include <gtest/gtest.h>

#include <ctime>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace velmar::expressions {
namespace {

using namespace std::string_literals;

TEST(Expression, IsWrittenFromItsElementsOrRefused) {
    const std::string name = "2: Invalid variable name or element: ";
    const std::string gap = "4: Incorrect element in the expression: ";
    const std::pair<std::string, std::string> rows[] = {
        {"(FLAG == \"on\") && COUNT > 2", "(FLAG == 'on') && COUNT > 2.0"},
        {"((ab  ==\t1) || (cd) )", "((ab == 1.0) || (cd))"},
        {"true <: 0.5 =~ \"\"", "true <: 0.5 =~ ''"},
        {"ab-c_1 ==1 % #", "ab-c_1 == 1.0"},
        {"100000 00.10 1. 12345678901234567890", "100000.0 0.1 1.0 1.2345678901234567e+19"},
        {"\"caf\u00E9 (x)\" ab", "'caf\u00E9 (x)' ab"},
        {"", "6: The expression should not be empty"},
        {" \t ", "6: The expression should not be empty"},
        {"% \u00E9", "6: The expression should not be empty"},
        {"a == 1", gap + "\"a \""},
        {"ab==1", gap + "\"ab==\""},
        {"ab == -1", gap + "\" -\""},
        {"ab == \"x\"y\"", gap + "\" \"x\""},
        {"ab &&& cd", name + "\"&&&\""},
        {"ab))", name + "\"ab)\""},
        {"(((", name + "\"((\""},
        {"()", name + "\"\""},
        {"1.2.3", name + "\"1.2.3\""},
        {".", name + "\".\""},
        {"\u00A0ab\u2003", "ab"},
    };
    for (const auto &[line, text] : rows) {
        std::string described;
        const std::string outcome = outcomeOf([&, &source = line] {
            const Expression expression(source);
            described = expression.description();
            EXPECT_EQ(expression.source(), source);
            return true;
        });
        EXPECT_EQ(outcome == "true" ? described : outcome, text) << line;
    }
}

TEST(Expression, ReadsPlainLinesAsThePatternDoes) {
    // Differs from the default pattern as text, so that every line is matched by the engine.
    constexpr std::string_view samePattern = "[a-zA-Z]{1}[a-zA-Z0-9_-]{1,}";
    const std::string_view pieces[] = {"AB",    "x-1", "A",  "9a",   "3",    "4.5.6", ".",  "true", "\"a b\"",
                                       "\"(\"", "\"",  "(",  ")",    "((",   ")(",    "==", "=",    "&&",
                                       "||",    ">=",  "~=", " ",    " ",    "   ",   "\t", "\n",   "é",
                                       "!",     "-",   "_",  "\x01", "\xff", " "};
    const auto read = [](std::string_view line, auto... pattern) {
        std::string described;
        const std::string outcome = outcomeOf([&] {
            described = Expression(line, pattern...).description();
            return true;
        });
        return described + outcome;
    };
    std::mt19937 random(7); // NOLINT(*-msc51-cpp): the same lines in every run
    for (int count = 0; count < 20'000; ++count) {
        std::string line;
        for (auto pieceCount = 1 + random() % 12; pieceCount > 0; --pieceCount) {
            line += pieces[random() % std::size(pieces)];
            line += random() % 3 == 0 ? "" : " ";
        }
        ASSERT_EQ(read(line), read(line, samePattern)) << line;
    }
}

TEST(Expression, IsACollectionEqualByItsElements) {
    const Expression expression("(name == \"caf\u00E9\" || other <= name)");
    EXPECT_EQ(std::distance(expression.begin(), expression.end()), 9);
    EXPECT_EQ(expression[0], ExpressionElement(Bracket::opening));
    EXPECT_EQ(expression.variableNames(), (VariableNames{"name", "other"}));
    EXPECT_EQ(expression, Expression("( name  == \"cafe\u0301\" || other <= name ) %"));
    for (const char *other :
         {"(name == \"cafe\" || other <= name)", "(name == \"caf\u00E9\" && other <= name)",
          "(name == \"caf\u00E9\" || other <= name", "(name == 1 || other <= name)"}) {
        EXPECT_FALSE(expression == Expression(other)) << other;
    }
}

TEST(Expression, TakesACallersPatternOfNames) {
    EXPECT_TRUE(Expression("$a == 1", R"(\$[a-z])").evaluate(Variables{{"$a", "1"}}));
    EXPECT_THROW(Expression("ab", "(").evaluate(Variables()), RegularExpressionError);
    // The first match must cover the name; here it covers the first letter only.
    EXPECT_EQ(outcomeOf([] { return Expression("ab == 1", "a|ab").evaluate(Variables()); }),
              "2: Invalid variable name or element: \"ab\"");
    EXPECT_EQ(outcomeOf([] { return Expression("\"a\"b\"", R"("a"b")").evaluate(Variables()); }),
              "1: Invalid string quotation: \"a\"b\"");
}

TEST(Expression, OfAnySizeHasAnOutcomeInASecond) {
    const auto repeated = [](std::string_view piece, std::size_t count = 65'536) {
        std::string text;
        while (text.size() < count) {
            text += piece;
        }
        return text;
    };
    const std::string million = repeated("caf\u00E9,e\u0301, x", 1'000'000);
    const Variables variables{
        {"on", "true"}, {"text", million}, {"copy", million + "y"}, {"digits", repeated("9")}};
    const std::string lines[] = {
        repeated("on && ") + "on",
        repeated("( ") + "on " + repeated(") "),
        repeated("((", 1000),
        repeated("x") + "%",
        repeated("1.") + "x",
        repeated("\"x"),
        "on == \"" + repeated("\u00E9"),
        repeated("x-", 100) + " == " + repeated("="),
        repeated("\xFF( "),
        "text == copy || text < copy || text <: copy || text ~= copy || text =~ copy || digits > 1 || digits "
        "== text",
    };
    std::size_t refusedByEngine = 0;
    for (const std::string &line : lines) {
        const std::clock_t start = std::clock();
        try {
            static_cast<void>(outcomeOf([&] { return Expression(line).evaluate(variables); }));
        } catch (const RegularExpressionError &error) {
            EXPECT_NE(error.as<RegularExpressionFailure::StepLimitReached>(), nullptr) << line.substr(0, 20);
            ++refusedByEngine;
        }
        // One second; sanitizers take longer.
        EXPECT_LT(std::clock() - start, 2 * CLOCKS_PER_SEC) << line.substr(0, 20);
    }
    EXPECT_GT(refusedByEngine, 0U) << "a search without end was taken for one without a match";
    EXPECT_TRUE(Expression(lines[0]).evaluate(variables));
    EXPECT_TRUE(Expression(lines[1]).evaluate(variables));
}

} // namespace
} // namespace velmar::expressions
