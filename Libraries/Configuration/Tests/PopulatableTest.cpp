#include <Configuration/ExpressionError.h>
#include <Configuration/Populatable.h>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace velmar;

namespace {

std::string outcomeOf(std::string_view text, const Variables &variables) {
    try {
        return populated(text, variables);
    } catch (const ExpressionError &error) {
        return error.errorDescription();
    }
}

TEST(Populatable, ReplacesReferencesByTheirValues) {
    const std::string accented = "Pr\u00e9nom";
    const Variables variables = {
        {"A", "${B}"},     {"B", "x"},        {" N ", "blanks"}, {"a\nb", "lines"},  {"${A", "odd"},
        {"", "none"},      {"E", ""},         {"Dollar", "$"},   {"T", "<${A}>"},    {"Self", "${Self}"},
        {"In", "1${Out}"}, {"Out", "2${In}"}, {accented, "y"},   {"Bad", "-${No}-"}, {"Open", "${B"},
    };
    const std::vector<std::pair<const char *, const char *>> rows = {
        {"", ""},
        {"plain $ { } $B {B} ${", "plain $ { } $B {B} ${"},
        {"${A}", "x"},
        {"a${B}b${B}${B}c", "axbxxc"},
        {"$${A}", "$x"},
        {"${A}}", "x}"},
        {"${A} ${B", "x ${B"},
        {"${ N }${a\nb}", "blankslines"},
        {"${${A}", "odd"},
        {"${}", "none"},
        {"[${E}]", "[]"},
        {"${Dollar}{B}", "${B}"},
        {"${Open}}", "${B}"},
        {"${T}${T}", "<x><x>"},
        {"${Pre\u0301nom}", "y"},
        {"a ${No} b", "Use of undefined variable 'No' in condition [ a ${No} b ]"},
        {"a ${Bad} b", "Use of undefined variable 'No' in condition [ -${No}- ]"},
        {"${N}", "Use of undefined variable 'N' in condition [ ${N} ]"},
        {"${Self}", "Circular reference involving Self. Traceback: 'Self'."},
        {"${B} ${In}", "Circular reference involving In. Traceback: 'In → Out'."},
    };
    for (const auto &[text, expected] : rows) {
        EXPECT_EQ(outcomeOf(text, variables), expected) << text;
    }
}

TEST(Populatable, KnowsTheNamesBehindAText) {
    using testing::ElementsAre;
    const Variables variables = {{"A", "${B}${C}"}, {"B", "${A}"}, {"D", "${E}"}};
    EXPECT_THAT(usedVariables("x${B}${A}${ N }${}${B}${"), ElementsAre("", " N ", "A", "B"));
    EXPECT_THAT(involvedVariables("${A} ${X}", variables), ElementsAre("A", "B", "C", "X"));
    EXPECT_THAT(involvedVariables("none", variables), ElementsAre());
    EXPECT_EQ(bareVariableName("${A}"), "A");
    EXPECT_EQ(bareVariableName("A"), "A");
}

TEST(Populatable, GoesAsDeepAsTheVariablesLead) {
    constexpr int length = 10'000;
    Variables chain;
    for (int index = 0; index < length; ++index) {
        chain.emplace(fmt::format("V{}", index), fmt::format("a${{V{}}}", index + 1));
    }
    chain.emplace(fmt::format("V{}", length), "end");
    EXPECT_EQ(populated("${V0}", chain), std::string(length, 'a') + "end");
    EXPECT_EQ(involvedVariables("${V0}", chain).size(), length + 1U);
    chain[fmt::format("V{}", length)] = "${V5000}";
    EXPECT_THAT(outcomeOf("${V0}", chain),
                testing::StartsWith("Circular reference involving V5000. Traceback: 'V0 → V1"));
}

// Each variable refers to the previous one twice, so that the last of thirty expands to 2^30 copies of the
// first.
TEST(Populatable, EndsWithinItsLimits) {
    const auto doubling = [](std::string first, std::string name) {
        Variables variables = {{name + "0", std::move(first)}};
        for (int index = 1; index <= 30; ++index) {
            const std::string before = fmt::format("${{{}{}}}", name, index - 1);
            variables.emplace(fmt::format("{}{}", name, index), before + before);
        }
        return variables;
    };
    const auto tooLarge = [](const char *limit) {
        return fmt::format("The text grows beyond {} when its variables get their values.", limit);
    };
    const std::string longName(1'000'000, 'N');
    EXPECT_EQ(outcomeOf("${V30}", doubling("", "V")), tooLarge("a million references"));
    EXPECT_EQ(outcomeOf("${V30}", doubling(std::string(1'000'000, 'm'), "V")), tooLarge("16 MiB"));
    EXPECT_EQ(outcomeOf(fmt::format("${{{}30}}", longName), doubling("", longName)), tooLarge("16 MiB"));
    EXPECT_EQ(populated("${V14}", doubling("0123456789abcdef", "V")).size(), std::size_t{256} << 10U);
    const std::string large(std::size_t{17} << 20U, '$');
    EXPECT_EQ(populated(large, {}), large) << "a text without references stays as it is";
}

} // namespace
