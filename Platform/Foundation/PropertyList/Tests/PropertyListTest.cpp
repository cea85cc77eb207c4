#include "PropertyListSamples.h"

using namespace velmar;

TEST(PropertyList, EqualsItsCopyAndWhatBothFormsReadBack) {
    std::mt19937 random(20240229);
    for (int round = 0; round < 200; ++round) {
        const PropertyList tree = randomTree(random, 4);
        const PropertyList copy = tree;
        ASSERT_EQ(copy, tree);
        const std::string xml = tree.xml();
        ASSERT_EQ(PropertyList::read(xml), tree) << xml;
        ASSERT_EQ(PropertyList::read(xml).xml(), xml);
        const std::vector<std::byte> binary = tree.binary();
        ASSERT_EQ(PropertyList::read(binary), tree) << xml;
        ASSERT_EQ(tree.binary(), binary);
    }
}

TEST(PropertyList, KeepsTheKindsOfValuesApart) {
    const std::vector<PropertyList> different = {true,
                                                 1,
                                                 1.0,
                                                 "1",
                                                 PropertyList::Date{1},
                                                 PropertyList::Array{1},
                                                 std::numeric_limits<std::uint64_t>::max(),
                                                 PropertyList::Data{{std::byte{1}}},
                                                 PropertyList()};
    for (std::size_t left = 0; left < different.size(); ++left) {
        for (std::size_t right = 0; right < different.size(); ++right) {
            EXPECT_EQ(different[left] == different[right], left == right) << left << " and " << right;
        }
    }
    EXPECT_EQ(PropertyList(std::uint64_t{5}).kind(), PropertyList::Kind::Integer);
    EXPECT_EQ(PropertyList(std::uint64_t{1} << 63).kind(), PropertyList::Kind::UnsignedInteger);
    EXPECT_EQ(PropertyList(5).real(), nullptr);
    EXPECT_EQ(PropertyList(5).boolean(), nullptr);
}

TEST(PropertyList, TakesAPartOfItselfAsItsValue) {
    PropertyList value(PropertyList::Array{PropertyList("a text longer than what is kept in place")});
    value = std::move(value.array()->front());
    EXPECT_EQ(value, PropertyList("a text longer than what is kept in place"));
}

TEST(PropertyListDictionary, IsEqualInAnyOrderAndSetsInPlace) {
    PropertyList::Dictionary one;
    one.set("a", 1);
    one.set("b", 2);
    PropertyList::Dictionary other;
    other.set("b", 0);
    other.set("a", 1);
    EXPECT_FALSE(one == other);
    other.set("b", 2);
    EXPECT_TRUE(one == other);
    ASSERT_EQ(other.size(), 2U);
    EXPECT_EQ(other.begin()->key, "b");
    EXPECT_EQ(*other.find("a"), PropertyList(1));
    EXPECT_EQ(other.find("A"), nullptr);
}

TEST(PropertyList, HasAShortTextForMessages) {
    PropertyList::Dictionary dictionary;
    dictionary.set("Size", 12);
    dictionary.set("Items", PropertyList::Array{"a", 0.5, true, PropertyList::Date{0}});
    EXPECT_EQ(PropertyList(dictionary).text(), "{Size = 12; Items = [a, 0.5, true, 2001-01-01T00:00:00Z]}");
    EXPECT_LT(PropertyList(PropertyList::Array(100000, "text")).text().size(), 500U);
    EXPECT_LT(nestedArrays(10000).text().size(), 500U);
}

TEST(PropertyList, WritesNothingThatCannotBeRead) {
    const double notANumber = std::nan("");
    struct {
        PropertyList value;
        bool binaryHoldsIt;
        std::string fragment;
    } const cases[] = {
        {std::string("a\0b", 3), true, "the character U+0000 is not allowed"},
        {"bell \a", true, "the character U+0007 is not allowed"},
        {"\xEF\xBF\xBF", true, "the character U+FFFF is not allowed"},
        {"\xC3", false, "not UTF-8"},
        {"\xED\xA0\x80", false, "not UTF-8"},
        {PropertyList::Date{notANumber}, false, "a date is not"},
        {PropertyList::Date{4e11}, true, "a date is not within the years"},
        {PropertyList::Date{1e300}, true, "a date is not within the years"},
        {nestedArrays(257), false, "nested more than 256 deep"},
    };
    for (const auto &[value, binaryHoldsIt, fragment] : cases) {
        try {
            ADD_FAILURE() << value.xml();
        } catch (const PropertyListError &error) {
            EXPECT_TRUE(error.errorDescription().starts_with("The property list cannot be written: "));
            EXPECT_NE(error.errorDescription().find(fragment), std::string::npos) << error.errorDescription();
        }
        if (binaryHoldsIt) {
            EXPECT_EQ(PropertyList::read(value.binary()), value) << fragment;
        } else {
            EXPECT_THROW(static_cast<void>(value.binary()), PropertyListError) << fragment;
        }
    }
    EXPECT_EQ(PropertyList::read(nestedArrays(256).xml()), nestedArrays(256));
    EXPECT_EQ(PropertyList::read(nestedArrays(256).binary()), nestedArrays(256));
}
