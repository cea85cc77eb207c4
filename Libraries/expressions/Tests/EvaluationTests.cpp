#include "NaiveEvaluation.h"
#include "Outcome.h"

#include <gtest/gtest.h>

#include <random>

namespace velmar::expressions {
namespace {

using namespace std::string_literals;

std::string evaluated(std::string_view line, const Variables &variables) {
    return outcomeOf([&] { return Expression(line).evaluate(variables); });
}

std::string alone(const std::string &element) {
    return "5: Invalid elements chaining: Trying to evaluate a single element which is not a variable: " +
           element;
}

TEST(Expression, IsEvaluatedLikeTheTablesOfTheLanguage) {
    const Variables variables{{"one", "1"},
                              {"ab", "1"},
                              {"on", "true"},
                              {"off", "false"},
                              {"True", "True"},
                              {"word", "word"},
                              {"real", "1.0"},
                              {"minus", "-5"},
                              {"hex", "0x1F"},
                              {"huge", "1e999"},
                              {"plus", "+5"},
                              {"odd", "nan"},
                              {"none", ""},
                              {"blank", " 1"},
                              {"null", "1\0"s},
                              {"list", "a, b ,c"},
                              {"gaps", ",, ,x"},
                              {"composed", "caf\u00E9"},
                              {"decomposed", "cafe\u0301"},
                              {"accents", "x,\u2003cafe\u0301\u00A0"},
                              {"TRUEVAR", "true"}};
    const std::string wrong =
        "9: The operator cannot be applied to the operands because they do not have the rigth type";
    const std::string mismatch = "8: The types of the two operands mistmatch";
    const std::string three = "0: Trying to evaluate a comparison which has not exactly three elements";
    const std::string literals =
        "0: Trying to evaluate a comparison which doesn't have at least one variable for operand: ";
    const std::pair<std::string, std::string> rows[] = {
        // alone
        {"on", "true"},
        {"off", "false"},
        {"gone", "3: Undefined variable: gone"},
        {"one", "5: Invalid elements chaining: Trying to evaluate a single variable which has not a boolean "
                "value: one"},
        {"True", "5: Invalid elements chaining: Trying to evaluate a single variable which has not a boolean "
                 "value: True"},
        {"true", alone("true")},
        {"2", alone("2.0")},
        {"\"x\"", alone("'x'")},
        {"&& ab == 1", alone("&&")},
        {"( )", alone(")")},
        {"on && )", alone(")")},
        {"== ab", alone("==")},
        {"on && || off", alone("||")},
        // comparisons
        {"ab == 1 %", "true"},
        {"ab ==1", "true"},
        {"1 == ab", "true"},
        {"2 > ab", "true"},
        {"ab > 2", "false"},
        {"ab == \"1\"", "true"},
        {"real == \"1\"", "false"},
        {"ab == real", "true"},
        {"word == 1", mismatch},
        {"True == true", mismatch},
        {"ab == true", mismatch},
        {"on > true", wrong},
        {"ab > true", mismatch},
        {"on > off", wrong},
        {"on != off", "true"},
        {"false == off", "true"},
        {"ab <: 3", wrong},
        {"ab ~= real", wrong},
        {"on <: \"true\"", "true"},
        {"on == word", "false"},
        {"word > on", "true"},
        {"ab < word", "true"},
        {"true == false", literals + "true, false"},
        {"\"x\" == 2", literals + "'x', 2.0"},
        {"ab ==", three},
        {"== ==", three},
        {"== == ab", "0: Trying to evaluate a comparison which doesn't have a left operand"},
        {"ab == (", "0: Trying to evaluate a comparison which doesn't have a right operand"},
        {"gone == 1", "3: Undefined variable: gone"},
        {"gone == word", "3: Undefined variable: gone"},
        {"gone == missing", "3: Undefined variable: gone"},
        {"1 == gone", "3: Undefined variable: gone"},
        {"word == gone", "false"},
        {"word != gone", "false"},
        {"ab <: gone", "false"},
        // values that are numbers, and that are not
        {"minus < 0", "true"},
        {"hex == 31", "true"},
        {"huge > 9", "true"},
        {"plus == 5", "true"},
        {"odd == odd", "false"},
        {"odd != 1", "true"},
        {"nan == odd", "false"},
        {"none == 0", mismatch},
        {"blank == 1", mismatch},
        {"null == 1", mismatch},
        {"null == ab", "false"},
        {"none == \"\"", "true"},
        // lists, beginnings and ends, accents
        {"list <: \"b\"", "true"},
        {"list <: \"b \"", "false"},
        {"none <: \"\"", "false"},
        {"gaps <: \"\"", "true"},
        {"list <: \"\"", "false"},
        {"accents <: composed", "true"},
        {"list ~= \"a,\"", "true"},
        {"list =~ \"c\"", "true"},
        {"list =~ \"b\"", "false"},
        {"composed == decomposed", "true"},
        {"composed =~ \"e\u0301\"", "true"},
        {"decomposed ~= \"cafe\"", "false"},
        {"decomposed > \"cafz\"", "true"},
        {"composed <= decomposed", "true"},
        {"\"caf\u00E9\" == decomposed", "true"},
        // brackets and chains
        {"( ab == 1", "0: Unable to flatten the expression for an uncaught error"},
        {"ab == 1 )", "7: The expression contains unbaled brackets"},
        {"ab == 1 ab", "0: Chaining a boolean with ab is invalid"},
        {"on (", "0: Chaining a boolean with ( is invalid"},
        {"on == true == true", "0: Chaining a boolean with == is invalid"},
        {"( ab == 1 ) on == 1",
         "5: Invalid elements chaining: Chaining a closing bracket with on is invalid"},
        {"( ( ab == 2 ) )", "false"},
        {"((ab == 1) )", "true"},
        {"(on && (off || on) )", "true"},
        // precedence, and nothing is cut short
        {"on || off && off", "true"},
        {"(on || off) && off", "false"},
        {"off && on || on && off || on", "true"},
        {"off && on || on && off || off", "false"},
        {"off || on && on && off || off", "false"},
        {"on && on || off && off || off", "true"},
        {"TRUEVAR || missing == 2", "3: Undefined variable: missing"},
        {"ab == 1 &&", "true"},
        {"off ||", "false"},
        {"on || off &&", "false"},
        {"on && off ||", "false"},
    };
    for (const auto &[line, outcome] : rows)
        EXPECT_EQ(evaluated(line, variables), outcome) << line;
    EXPECT_EQ(evaluated("ab == 1", {}), "3: Undefined variable: ab");
}

TEST(Operator, GivesAResultForItsKindsOnly) {
    const Value values[] = {"a", "b", 1.0, 2.0, false, true};
    // For each pair of values of one kind: less, equal, greater; "-" for no result.
    const std::pair<std::string_view, std::string_view> rows[] = {
        {"==", "010 010 010"}, {"!=", "101 101 101"}, {">", "001 001 ---"},
        {">=", "011 011 ---"}, {"<", "100 100 ---"},  {"<=", "110 110 ---"},
        {"<:", "010 --- ---"}, {"~=", "010 --- ---"}, {"=~", "010 --- ---"},
    };
    ASSERT_EQ(Operator::all().size(), std::size(rows));
    for (std::size_t row = 0; row < std::size(rows); ++row) {
        const Operator each = Operator::all()[row];
        EXPECT_EQ(each.description(), rows[row].first);
        std::string results;
        for (std::size_t left = 0; left < std::size(values); ++left) {
            for (std::size_t right = 0; right < std::size(values); ++right) {
                const auto result = each.evaluate(values[left], values[right]);
                if (values[left].index() != values[right].index())
                    EXPECT_FALSE(result) << each.description();
                else if (left == right ? left % 2 == 0 : true)
                    results += !result ? '-' : *result ? '1' : '0';
            }
            if (left % 2 == 1 && left < 5)
                results += ' ';
        }
        // Less is found before equal.
        for (std::size_t kind = 0; kind < results.size(); kind += 4)
            std::swap(results[kind], results[kind + 1]);
        EXPECT_EQ(results, rows[row].second) << each.description();
    }
}

TEST(Expression, TellsItsSteps) {
    const Variables variables{{"on", "true"}, {"ab", "1"}};
    std::vector<Step> steps = {{7, 7, true}};
    EXPECT_FALSE(Expression("on && ( ab == 2 || on ) && 1 != ab").evaluate(variables, &steps));
    EXPECT_EQ(steps, (std::vector<Step>{{0, 1, true}, {3, 3, false}, {7, 1, true}, {10, 3, false}}));
    const std::pair<const char *, std::vector<Step>> failures[] = {
        {"on && gone == 1 && on", {{0, 1, true}, {2, 3, {}}}},
        {"on || 2", {{0, 1, true}, {2, 1, {}}}},
        {"on && ab ==", {{0, 1, true}, {2, 2, {}}}},
        {"on )", {{0, 1, true}}},
    };
    for (const auto &[line, expected] : failures) {
        EXPECT_THROW(Expression(line).evaluate(variables, &steps), ExpressionError) << line;
        EXPECT_EQ(steps, expected) << line;
    }
}

TEST(Expression, AgreesWithTheNaiveReading) {
    const Variables variables{{"on", "true"}, {"off", "false"}, {"one", "1"},       {"two", "2.0"},
                              {"word", "w"},  {"list", "w,x"},  {"acc", "e\u0301"}, {"empty", ""}};
    const std::string values[] = {"on",   "off", "one", "two",   "word",       "list", "acc",  "empty",
                                  "gone", "1",   "2",   "\"w\"", "\"\u00E9\"", "\"\"", "true", "false"};
    std::mt19937 random(20240229);
    const auto below = [&](std::size_t bound) { return random() % bound; };
    std::size_t booleans = 0;
    for (int round = 0; round < 5'000; ++round) {
        // Well-formed for the most part: what is drawn badly ends in an error at once.
        std::string line;
        const std::size_t accident = 1 + below(60);
        for (std::size_t part = 0, level = 0; part == 0 || below(6) != 0; ++part) {
            if (part > 0)
                line += below(2) == 0 ? "&& " : "|| ";
            for (; below(3) == 0; ++level)
                line += "( ";
            line += below(3) == 0
                        ? values[below(8)] + " " + std::string(Operator::all()[below(9)].description()) +
                              " " + values[below(16)] + " "
                        : values[below(2)] + " ";
            for (; level > 0 && below(2) == 0; --level)
                line += ") ";
            if (below(accident) == 0)
                line += std::array{"( ", ") ", "&& ", "|| ", "== ", "on ", "1 "}[below(7)];
        }
        const Expression expression(line);
        const std::string outcome = outcomeOf([&] { return expression.evaluate(variables); });
        booleans += outcome.find(':') == std::string::npos ? 1 : 0;
        ASSERT_EQ(outcome, outcomeOf([&] { return naivelyEvaluated(expression.elements(), variables); }))
            << line;
    }
    EXPECT_GT(booleans, 1'000U);
}

} // namespace
} // namespace velmar::expressions
