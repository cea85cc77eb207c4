#include <Foundation/UnicodeText.h>

#include <gtest/gtest.h>

namespace velmar {
namespace {

constexpr std::string_view composed = "caf\u00E9";
constexpr std::string_view decomposed = "cafe\u0301";

TEST(UnicodeText, EqualsByCanonicalEquivalence) {
    const struct {
        std::string_view left;
        std::string_view right;
        bool isEqual;
    } cases[] = {
        {"", "", true},
        {"abc", "abc", true},
        {"abc", "abC", false},
        {composed, decomposed, true},
        {composed, "cafe", false},
        {"\u212B", "A\u030A", true},              // Ångström sign
        {"a\u0323\u0307", "a\u0307\u0323", true}, // different order of marks
        {"\uFB01", "fi", false},                  // compatibility equivalence only
        {"\U0001100A", "\U0001100B", false},
        {"\xFF"
         "e\u0301",
         "\xFF\u00E9", true}, // ill-formed bytes are kept
    };
    for (const auto &each : cases) {
        EXPECT_EQ(UnicodeText::isEqual(each.left, each.right), each.isEqual)
            << each.left << " " << each.right;
        EXPECT_EQ(UnicodeText::compare(each.left, each.right) == 0, each.isEqual)
            << each.left << " " << each.right;
    }
}

TEST(UnicodeText, OrdersByComposedCodePoints) {
    const std::string_view ascending[] = {"",       "B", "a",      "ab",     "b",
                                          composed, "d", "\u00E9", "\uFFFD", "\U00010000"};
    for (std::size_t index = 1; index < std::size(ascending); ++index) {
        EXPECT_TRUE(UnicodeText::compare(ascending[index - 1], ascending[index]) < 0) << ascending[index];
    }
    // A decomposed "é" sorts as the composed one, after "z".
    EXPECT_TRUE(UnicodeText::compare("e\u0301", "z") > 0);
}

TEST(UnicodeText, IsTrimmedOfWhiteSpace) {
    const std::pair<std::string_view, std::string_view> rows[] = {
        {"", ""},
        {" \t\r\n\v\f", ""},
        {"a b", "a b"},
        {"\u00A0\u2028 \u00E9t\u00E9 \u3000\u0085", "\u00E9t\u00E9"},
        {" \xA0 ", "\xA0"}, // ill-formed: a lone continuation byte
        {"a \x80\x80\x80", "a \x80\x80\x80"},
    };
    for (const auto &[text, trimmed] : rows) {
        EXPECT_EQ(UnicodeText::trimmed(text), trimmed) << text;
    }
}

TEST(UnicodeText, FindsPartsBetweenCharacters) {
    const struct {
        std::string_view text, part;
        bool contains, begins, ends;
    } rows[] = {
        {"un café noir", decomposed, true, false, false},
        {decomposed, "cafe", false, false, false},
        {"q\u0323", "q", false, false, false}, // has no composed form
        {"q\u0323", "\u0323", false, false, false},
        {"q\u0323q", "q", true, false, true},
        {"q\u0323", "", true, true, true},
        {"a", "ab", false, false, false},
        {"\u00E9t\u00E9", "e\u0301", true, true, true},
        {"e\u0301t", "e", false, false, false},
        {"abc", "abc", true, true, true},
        {"abc", "ABC", false, false, false},
    };
    for (const auto &[text, part, contains, begins, ends] : rows) {
        EXPECT_EQ(UnicodeText::contains(text, part), contains) << text << " " << part;
        EXPECT_EQ(UnicodeText::hasPrefix(text, part), begins) << text << " " << part;
        EXPECT_EQ(UnicodeText::hasSuffix(text, part), ends) << text << " " << part;
    }
}

TEST(UnicodeText, ChangesCaseWithoutALocale) {
    EXPECT_EQ(UnicodeText::lowercased("Firefox [ID@_`{"), "firefox [id@_`{");
    EXPECT_EQ(UnicodeText::uppercased("Firefox [id@_`{"), "FIREFOX [ID@_`{");
    EXPECT_EQ(UnicodeText::lowercased("ÉTÉ ΣΑΣ İ"), "été σας i\u0307");
    EXPECT_EQ(UnicodeText::uppercased("straße i ı"), "STRASSE I I");
}

TEST(UnicodeText, TellsColumnsOfATerminal) {
    const struct {
        std::string_view text;
        std::size_t columns, lengthWithinThree;
    } texts[] = {{"", 0, 0},         {"abcd", 4, 3},         {"e\u0301te", 3, 5},  {"日本語", 6, 3},
                 {"a😀\uFF21", 5, 5}, {"\u1100\u1161", 2, 6}, {"\u200B\xFF", 1, 4}, {"abc\u0301", 3, 5}};
    for (const auto &each : texts) {
        EXPECT_EQ(UnicodeText::displayWidth(each.text), each.columns) << each.text;
        EXPECT_EQ(UnicodeText::lengthWithin(each.text, 3), each.lengthWithinThree) << each.text;
    }
}

TEST(UnicodeText, KnowsValidUtf8) {
    for (const std::string_view valid : {"", "ascii only, and longer than a word", "é€😀", "\u0001\x7F"}) {
        EXPECT_TRUE(UnicodeText::isValidUtf8(valid)) << valid;
    }
    EXPECT_TRUE(UnicodeText::isValidUtf8(std::string_view("a\0b", 3)));
    const std::string_view invalid[] = {
        "\x80", "abcdefghijk\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82",
        "\xFF", "\xC3(",
    };
    for (const auto text : invalid) {
        EXPECT_FALSE(UnicodeText::isValidUtf8(text)) << testing::PrintToString(text);
    }
    EXPECT_FALSE(UnicodeText::isAscii("abcdefgh\xC3\xA9"));
    EXPECT_TRUE(UnicodeText::isAscii("abcdefghi"));
}

} // namespace
} // namespace velmar
