#include "Outcome.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

namespace velmar::expressions {
namespace {

using namespace std::string_literals;

std::string evaluated(std::string_view line, const Variables &variables) {
    return outcomeOf([&] { return Expression(line).evaluate(variables); });
}

Variables tableVariables() {
    Variables variables{
        {"none", ""}, {"null", "1\0"s}, {"blank", " 1"}, {"gaps", ",, ,x"}, {"list", "a, b ,c"}};
    variables["composed"] = "caf\u00E9";
    variables["decomposed"] = "cafe\u0301";
    variables["accents"] = "x,\u2003cafe\u0301\u00A0";
    std::istringstream pairs(
        "on true off false one 1 ab 1 TRUEVAR true True True word word real 1.0 minus -5 hex 0x1F "
        "huge 1e999 plus +5 odd nan");
    for (std::string name, value; pairs >> name >> value;) {
        variables[name] = value;
    }
    return variables;
}

// Each outcome is followed by the expressions that have it, separated by " ; ".
constexpr const char *table = R"(true
    on ; ab == 1 % ; ab ==1 ; 1 == ab ; 2 > ab ; ab == "1" ; ab == real ; on != off ; false == off
    on <: "true" ; word > on ; ab < word ; minus < 0 ; hex == 31 ; huge > 9 ; plus == 5 ; odd != 1
    none == "" ; list <: "b" ; gaps <: "" ; accents <: composed ; list ~= "a," ; list =~ "c"
    composed == decomposed ; decomposed > "cafz" ; composed <= decomposed ; ((ab == 1) )
    (on && (off || on) ) ; on || off && off ; off && on || on && off || on
    on && on || off && off || off ; ab == 1 &&
false
    off ; ab > 2 ; real == "1" ; on == word ; word == gone ; word != gone ; ab <: gone ; odd == odd
    nan == odd ; null == ab ; list <: "b " ; none <: "" ; list <: "" ; list =~ "b"
    decomposed ~= "cafe" ; ( ( ab == 2 ) ) ; (on || off) && off ; off && on || on && off || off
    off || on && on && off || off ; off || ; on || off && ; on && off ||
3: Undefined variable: gone
    gone ; gone == 1 ; gone == word ; gone == missing ; 1 == gone
5: Invalid elements chaining: Trying to evaluate a single variable which has not a boolean value: one
    one
5: Invalid elements chaining: Trying to evaluate a single variable which has not a boolean value: True
    True
5: Invalid elements chaining: Trying to evaluate a single element which is not a variable: true
    true
5: Invalid elements chaining: Trying to evaluate a single element which is not a variable: 2.0
    2
5: Invalid elements chaining: Trying to evaluate a single element which is not a variable: 'x'
    "x"
5: Invalid elements chaining: Trying to evaluate a single element which is not a variable: &&
    && ab == 1
5: Invalid elements chaining: Trying to evaluate a single element which is not a variable: )
    ( )
    on && )
5: Invalid elements chaining: Trying to evaluate a single element which is not a variable: ==
    == ab
5: Invalid elements chaining: Trying to evaluate a single element which is not a variable: ||
    on && || off
8: The types of the two operands mistmatch
    word == 1 ; True == true ; ab == true ; ab > true ; none == 0
    blank == 1 ; null == 1
9: The operator cannot be applied to the operands because they do not have the rigth type
    on > true
    on > off ; ab <: 3 ; ab ~= real
0: Trying to evaluate a comparison which doesn't have at least one variable for operand: true, false
    true == false
0: Trying to evaluate a comparison which doesn't have at least one variable for operand: 'x', 2.0
    "x" == 2
0: Trying to evaluate a comparison which has not exactly three elements
    ab == ; == ==
0: Trying to evaluate a comparison which doesn't have a left operand
    == == ab
0: Trying to evaluate a comparison which doesn't have a right operand
    ab == (
0: Unable to flatten the expression for an uncaught error
    ( ab == 1
7: The expression contains unbaled brackets
    ab == 1 )
0: Chaining a boolean with ab is invalid
    ab == 1 ab
0: Chaining a boolean with ( is invalid
    on (
0: Chaining a boolean with == is invalid
    on == true == true
5: Invalid elements chaining: Chaining a closing bracket with on is invalid
    ( ab == 1 ) on == 1
3: Undefined variable: missing
    TRUEVAR || missing == 2)";

TEST(Expression, IsEvaluatedLikeTheTableOfTheLanguage) {
    const Variables variables = tableVariables();
    std::istringstream lines(table);
    std::string outcome;
    std::size_t count = 0;
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with(' ')) {
            outcome = line;
            continue;
        }
        for (std::size_t start = 4, end = 0; start < line.size(); start = end + 3, ++count) {
            end = std::min(line.find(" ; ", start), line.size());
            const std::string expression = line.substr(start, end - start);
            EXPECT_EQ(evaluated(expression, variables), outcome) << expression;
        }
    }
    EXPECT_EQ(count, 93U);
    EXPECT_EQ(evaluated("composed =~ \"e\u0301\" && \"caf\u00E9\" == decomposed", variables), "true");
    EXPECT_EQ(evaluated("ab == 1", {}), "3: Undefined variable: ab");
}

TEST(Operator, GivesAResultForItsKindsOnly) {
    const Value values[] = {"a", "b", 1.0, 2.0, false, true};
    // Columns for texts, numbers and booleans: less, equal, greater; "-" for no result.
    const std::pair<std::string_view, std::string> rows[] = {
        {"==", "010010010"}, {"!=", "101101101"}, {">", "001001---"},
        {">=", "011011---"}, {"<", "100100---"},  {"<=", "110110---"},
        {"<:", "010------"}, {"~=", "010------"}, {"=~", "010------"}};
    ASSERT_EQ(Operator::all().size(), std::size(rows));
    for (std::size_t row = 0; row < std::size(rows); ++row) {
        const auto &[text, results] = rows[row];
        const Operator each = Operator::all()[row];
        EXPECT_EQ(each.description(), text);
        for (std::size_t left = 0; left < std::size(values); ++left) {
            for (std::size_t right = 0; right < std::size(values); ++right) {
                const char expected = left / 2 == right / 2 ? results[left / 2 * 3 + 1 + left - right] : '-';
                const auto result = each.evaluate(values[left], values[right]);
                EXPECT_EQ(!result ? '-' : *result ? '1' : '0', expected) << text << left << right;
            }
        }
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

// A random disjunction of conjunctions with its value and the value of its last conjunction.
struct Generated {
    std::string text;
    bool value = false;
    bool last = true;
};

Generated generated(std::mt19937 &random, int depth) {
    static const std::pair<const char *, bool> leaves[] = {
        {"on", true}, {"off", false}, {"ab == 1", true}, {"2 <= ab", false}};
    Generated made;
    for (int term = 0; term == 0 || random() % 2 == 0; ++term) {
        made.text += term > 0 ? " || " : "";
        made.last = true;
        for (int factor = 0; factor == 0 || random() % 2 == 0; ++factor) {
            made.text += factor > 0 ? " && " : "";
            const auto &[leaf, value] = leaves[random() % std::size(leaves)];
            const bool isBracket = depth > 0 && random() % 6 == 0;
            const Generated inner = isBracket ? generated(random, depth - 1) : Generated{leaf, value};
            made.text += isBracket ? "( " + inner.text + " )" : inner.text;
            made.last = made.last && inner.value;
        }
        made.value = made.value || made.last;
    }
    return made;
}

TEST(Expression, GivesWhatItsGrammarSays) {
    std::mt19937 random(20240229);
    for (int round = 0; round < 5'000; ++round) {
        const auto [text, value, last] = generated(random, 20);
        const Variables variables = {{"on", "true"}, {"off", "false"}, {"ab", "1"}};
        ASSERT_EQ(Expression(text).evaluate(variables), value) << text;
        ASSERT_EQ(Expression(text + " ||").evaluate(variables), value) << text;
        ASSERT_EQ(Expression(text + " &&").evaluate(variables), last) << text;
    }
}

} // namespace
} // namespace velmar::expressions
