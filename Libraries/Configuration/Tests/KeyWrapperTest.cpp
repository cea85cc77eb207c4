#include "Support.h"

#include <Configuration/ItemCoding.h>

#include <gtest/gtest.h>

using namespace velmar;
using namespace std::string_literals;
using velmar::test::fileWith;

namespace {

struct TestItem {
    static constexpr std::string_view typeName = "TestItem";

    KeyWrapper<std::string> _name{"nobody", "Name", required};
    KeyWrapper<std::int64_t> _count{3, "Count", optional, {1, 10}};
    KeyWrapper<std::optional<double>> _share{std::nullopt, "Share", optional, {0, 1}};
    KeyWrapper<bool> _flag{true, "Flag", optional};
    KeyWrapper<std::vector<std::string>> _list{
        {}, "List", optional, ArrayCodingStrategy::customStringConvertible};
    KeyWrapper<std::map<std::string, std::string>> _texts{"Texts", optional};
};

struct RuleItem {
    static constexpr std::string_view typeName = "RuleItem";

    KeyWrapper<bool> _a{false, "A", optional};
    KeyWrapper<bool> _b{false, "B", optional};
    KeyWrapper<bool> _ifBoth{false, "IfBoth", requiredIfSpecified({"A", "B"})};
    KeyWrapper<bool> _ifNotBoth{false, "IfNotBoth", requiredIfNotSpecified({"A", "B"})};
    KeyWrapper<bool> _notWithA{false, "NotWithA", exclude({"A"})};
    KeyWrapper<bool> _either{false, "Either", requiredExcluding({"Other"})};
    KeyWrapper<bool> _other{false, "Other", optional};
};

template <class Item>
Item decodeAt(const PropertyList &value) {
    DecodingContext context;
    const CodingPath root;
    const CodingPath path(root, "Item");
    const auto document = PropertyListDocument::of(value);
    return Decodable<Item>::decode({document.root(), path, context});
}

template <class Item>
std::string outcome(const PropertyList &value) {
    try {
        decodeAt<Item>(value);
    } catch (const ConfigurationError &error) {
        return error.errorDescription();
    }
    return "decoded";
}

struct Row {
    const char *content;
    const char *outcome;
};

TEST(KeyWrapper, DecodesOrFailsWithItsText) {
    const std::vector<Row> rows = {
        {"<key>Count</key><integer>1</integer>", "decoded"},
        {"<key>Count</key><integer>10</integer>", "decoded"},
        {"<key>Count</key><real>7.0</real>", "decoded"},
        {"<key>Count</key><integer>11</integer>",
         "Wrong value 11.0 in allowed range 1.0...10.0 at Item.Count"},
        {"<key>Count</key><real>1.5</real>",
         "Decoding error at 'Item.Count'. The value is the real 1.5.\nExpected type: integer (number)."},
        {"<key>Count</key><integer>18446744073709551615</integer>",
         "Decoding error at 'Item.Count'. The value 18446744073709551615 is too large.\nExpected type: "
         "integer "
         "(number)."},
        {"<key>Share</key><integer>1</integer>", "decoded"},
        {"<key>Share</key><real>1.01</real>", "Wrong value 1.01 in allowed range 0.0...1.0 at Item.Share"},
        {"<key>Share</key><real>nan</real>", "Wrong value for key 'Share' when decoding at 'Item.Share'"},
        {"<key>Flag</key><integer>1</integer>",
         "Decoding error at 'Item.Flag'. The value is the integer 1.\nExpected type: boolean."},
        {"<key>List</key><array><string>a</string><integer>1</integer></array>",
         "Unable to decode or encode the array as [Int], [Real], or [String] at Item.List"},
        {"<key>List</key><string>a</string>",
         "Unable to decode or encode the array as [Int], [Real], or [String] at Item.List"},
        {"<key>Texts</key><dict><key>k</key><true/></dict>",
         "Decoding error at 'Item.Texts.k'. The value is a boolean.\nExpected type: string."},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(outcome<TestItem>(fileWith("<key>Name</key><string/>"s + row.content)), row.outcome)
            << row.content;
    }
    EXPECT_EQ(outcome<TestItem>(fileWith("")), "Missing required key 'Name' at 'Item'");
    EXPECT_EQ(outcome<TestItem>(fileWith("<key>Name</key><integer>5</integer>")),
              "Decoding error at 'Item.Name'. The value is the integer 5.\nExpected type: string.");
    EXPECT_EQ(
        outcome<TestItem>(PropertyList("text")),
        "Decoding error at 'Item'. Missing required key 'Item' or wrong value. Expected type: dictionary "
        "(TestItem). The value is 'text'.");
}

TEST(KeyWrapper, ReadsNumbersInArraysAsTexts) {
    const auto listOf = [](const char *elements) {
        return decodeAt<TestItem>(fileWith(fmt::format(
                                      "<key>Name</key><string/><key>List</key><array>{}</array>", elements)))
            ._list();
    };
    using List = std::vector<std::string>;
    EXPECT_EQ(listOf("<integer>-4</integer><integer>7</integer>"), (List{"-4", "7"}));
    EXPECT_EQ(listOf("<real>0.5</real><real>2</real>"), (List{"0.5", "2.0"}));
    EXPECT_EQ(listOf("<integer>1</integer><real>100000</real>"), (List{"1.0", "100000.0"}));
    EXPECT_EQ(listOf("<string>0x</string>"), (List{"0x"}));
    EXPECT_EQ(listOf(""), List{});
}

TEST(KeyWrapper, KnowsWhetherItWasGivenOrSet) {
    const auto item = decodeAt<TestItem>(fileWith("<key>Name</key><string>nobody</string>"));
    EXPECT_TRUE(item._name.wasGivenValueWhileDecoding());
    EXPECT_FALSE(item._count.wasGivenValueWhileDecoding());
    EXPECT_EQ(item._count(), 3);

    TestItem copy = item;
    copy._count.set(9);
    EXPECT_TRUE(copy._count.valueWasSet());
    EXPECT_FALSE(copy._count.wasGivenValueWhileDecoding());
    EXPECT_EQ(item._count(), 3) << "a copy keeps its value to itself";
    copy._count.reset();
    EXPECT_EQ(copy._count(), 3);
    EXPECT_FALSE(copy._count.valueWasSet());
}

TEST(KeyWrapper, WritesWhatIsRequiredOrSet) {
    TestItem item = makeDefault<TestItem>();
    EXPECT_EQ(*Decodable<TestItem>::encode(item), fileWith("<key>Name</key><string>nobody</string>"));
    item._flag.set(false);
    item._share.set(std::nullopt);
    EXPECT_EQ(*Decodable<TestItem>::encode(item),
              fileWith("<key>Name</key><string>nobody</string><key>Flag</key><false/>"));
}

TEST(Requirement, HoldsOrFailsWithItsText) {
    const std::string bad = "Key validation error. ";
    const std::string ifNotBoth =
        bad + "The key IfNotBoth is required when one of the following keys is missing: [\"A\", \"B\"]";
    const std::string either =
        bad + "One of the keys [\"Other\"] has to be specified. But only one can be specified.";
    const std::vector<std::pair<std::vector<const char *>, std::string>> rows = {
        {{"IfNotBoth", "Either"}, "decoded"},
        {{"A", "B", "IfBoth", "Other"}, "decoded"},
        {{"A", "B", "Other"},
         bad + "The key 'IfBoth' is required when the key(s) '[\"A\", \"B\"]' is/are specified."},
        {{"A", "Either"}, ifNotBoth},
        {{"Either"}, ifNotBoth},
        {{"B", "IfNotBoth", "NotWithA", "Either"}, "decoded"},
        {{"A", "IfNotBoth", "NotWithA", "Either"},
         bad + "The key NotWithA excludes a key specified in [\"A\"]."},
        {{"IfNotBoth", "Either", "Other"}, either},
        {{"IfNotBoth"}, either},
    };
    for (const auto &[keys, expected] : rows) {
        std::string content;
        for (const char *key : keys) {
            content += fmt::format("<key>{}</key><true/>", key);
        }
        EXPECT_EQ(outcome<RuleItem>(fileWith(content)), expected) << content;
    }
}

class Suffix final : public Plugin {
public:
    explicit Suffix(std::string suffix) : suffix_(std::move(suffix)) {}
    void filter(std::span<std::string *const> texts) const override {
        for (std::string *text : texts) {
            *text += suffix_ + (texts.size() > 1 ? "+" : "");
        }
    }

private:
    std::string suffix_;
};

TEST(Plugin, FiltersTextsWhenTheyAreRead) {
    const auto first = Plugins::registerPlugin(std::make_shared<Suffix>("1"));
    const auto content =
        "<key>Name</key><string>a</string><key>List</key><array><string>b</string><string>d</string></array>"
        "<key>Texts</key><dict><key>k</key><string>c</string></dict>";
    const auto item = decodeAt<TestItem>(fileWith(content));
    {
        const auto second = Plugins::registerPlugin(std::make_shared<Suffix>("2"));
        EXPECT_EQ(item._name(), "a12");
        EXPECT_EQ(item._list(), (std::vector<std::string>{"b1+2+", "d1+2+"})) << "one value, one call";
        EXPECT_EQ(item._texts().at("k"), "c12");
        EXPECT_EQ(item._name.rawValue(), "a");
        EXPECT_EQ(*Decodable<TestItem>::encode(item), fileWith(content))
            << "what is written is as it was read";
    }
    EXPECT_EQ(item._name(), "a1");
}

} // namespace
