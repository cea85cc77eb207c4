#include <Foundation/RegularExpression.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include <thread>

namespace velmar {
namespace {

using testing::ElementsAre;

std::vector<std::string> textsOf(const RegularExpression &expression, std::string_view text) {
    std::vector<std::string> texts;
    for (const auto &match : expression.matches(text)) {
        texts.emplace_back(match.range().of(text));
    }
    return texts;
}

TEST(RegularExpression, FindsAllMatchesInOrder) {
    const RegularExpression placeholder(R"(\$\{[^\}]*\})", {.dotMatchesLineSeparators = true});
    EXPECT_THAT(textsOf(placeholder, "Hi ${A}, ${}${B\nC} $D"), ElementsAre("${A}", "${}", "${B\nC}"));
    EXPECT_THAT(textsOf(placeholder, ""), ElementsAre());
    const RegularExpression token(R"re((?<=(\s|\A))("[^"]*"|'[^']*'|[^"\s]+)(?=(\s|$)))re");
    EXPECT_THAT(textsOf(token, R"(run "a b" 'c d' e"f)"), ElementsAre("run", "\"a b\"", "'c d'"));
    EXPECT_THAT(textsOf(RegularExpression("x*"), "axx"), ElementsAre("", "xx", ""));
}

TEST(RegularExpression, CountsRangesInBytesOfTheText) {
    // Characters of one to four bytes; the last one is two UTF-16 units.
    const std::string text = "aé€😀b";
    const auto match = RegularExpression("(€)(.)(b)?(c)?").firstMatch(text);
    ASSERT_TRUE(match);
    EXPECT_EQ(match->range(), (TextRange{3, 8}));
    EXPECT_EQ(match->group(1), (TextRange{3, 3}));
    EXPECT_EQ(match->group(2), (TextRange{6, 4}));
    EXPECT_EQ(match->group(3), (TextRange{10, 1}));
    EXPECT_EQ(match->group(4), std::nullopt);
    EXPECT_EQ(match->group(5), std::nullopt);
    // A lookbehind group lies before the match.
    EXPECT_EQ(RegularExpression("(?<=(é))€").firstMatch(text)->group(1), (TextRange{1, 2}));
    // Ill-formed bytes count as characters and don't shift later positions.
    EXPECT_EQ(RegularExpression("x").firstMatch("\xFF\xE2\x82x")->range(), (TextRange{3, 1}));
    EXPECT_EQ(RegularExpression(".").matches("\xFF\xE2\x82x").size(), 3U);
    // NUL is an ordinary character.
    EXPECT_EQ(RegularExpression("b").firstMatch(std::string_view("a\0b", 3))->range(), (TextRange{2, 1}));
}

TEST(RegularExpression, MatchesWholeIfTheFirstMatchIsTheWhole) {
    const struct {
        const char *pattern;
        const char *text;
        bool isWhole;
    } cases[] = {
        {".*", "", true},       {".*", "one line", true}, {".*", "two\nlines", false},
        {"[0-9]+", "12", true}, {"[0-9]+", "12a", false}, {"[0-9]+", "", false},
        {"a|ab", "ab", false},  {"é+", "éé", true},
    };
    for (const auto &each : cases) {
        EXPECT_EQ(RegularExpression(each.pattern).matchesWhole(each.text), each.isWhole)
            << each.pattern << " on " << each.text;
    }
}

TEST(RegularExpression, HeedsItsOptions) {
    EXPECT_TRUE(RegularExpression("É", {.caseInsensitive = true}).firstMatch("é"));
    EXPECT_FALSE(RegularExpression("É").firstMatch("é"));
    EXPECT_TRUE(RegularExpression("a b # note", {.allowsCommentsAndWhitespace = true}).firstMatch("ab"));
    EXPECT_FALSE(RegularExpression("a.b").firstMatch("a\nb"));
    EXPECT_TRUE(RegularExpression("a.b", {.dotMatchesLineSeparators = true}).firstMatch("a\nb"));
    EXPECT_FALSE(RegularExpression("^b$").firstMatch("a\nb\nc"));
    EXPECT_TRUE(RegularExpression("^b$", {.anchorsMatchLines = true}).firstMatch("a\nb\nc"));
}

TEST(RegularExpression, RefusesWhatIsNoPattern) {
    for (const std::string pattern : {"(", "[a", "a{2,1}", "*", "(?<=a*)b", "\\", "\xFF"}) {
        try {
            const RegularExpression compiled(pattern);
            ADD_FAILURE() << pattern << " compiled";
        } catch (const RegularExpressionError &error) {
            const auto *invalid = error.as<RegularExpressionError::InvalidPattern>();
            ASSERT_NE(invalid, nullptr) << pattern;
            EXPECT_EQ(invalid->pattern, pattern);
        }
    }
}

TEST(RegularExpression, TellsARunawayMatchApartFromNoMatch) {
    const struct {
        const char *pattern;
        std::string text;
        bool isStepLimit; // otherwise a stack overflow
    } rows[] = {{"(a+)+b", std::string(60, 'a') + "c", true}, {"(a|b)*b", std::string(500'000, 'a'), false}};
    for (const auto &[pattern, text, isStepLimit] : rows) {
        const RegularExpression expression(pattern, {}, 200);
        const std::function<void()> searches[] = {
            [&, &of = text] { static_cast<void>(expression.firstMatch(of)); },
            [&, &of = text] { static_cast<void>(expression.matches(of)); },
            [&, &of = text] { static_cast<void>(expression.matchesWhole(of)); }};
        for (const auto &search : searches) {
            try {
                search();
                ADD_FAILURE() << pattern << " gave a result";
            } catch (const RegularExpressionError &error) {
                EXPECT_EQ(error.as<RegularExpressionError::StepLimitReached>() != nullptr, isStepLimit);
                EXPECT_EQ(error.as<RegularExpressionError::StackOverflow>() != nullptr, !isStepLimit);
            }
        }
        EXPECT_TRUE(expression.matchesWhole("aab")) << "the expression is of use after a failure";
    }
}

TEST(RegularExpression, IsUsedByManyThreadsAtOnce) {
    const RegularExpression expression("([a-z]+)-(\\d+)");
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 8; ++thread) {
        threads.emplace_back([&expression, thread] {
            const std::string number = std::to_string(thread);
            const std::string text = std::string(static_cast<std::size_t>(thread), ' ') + "abc-" + number;
            for (int round = 0; round < 200; ++round) {
                const auto match = RegularExpression(expression).firstMatch(text);
                ASSERT_TRUE(match);
                ASSERT_EQ(match->group(2)->of(text), number);
            }
        });
    }
    for (auto &thread : threads) {
        thread.join();
    }
}

} // namespace
} // namespace velmar
