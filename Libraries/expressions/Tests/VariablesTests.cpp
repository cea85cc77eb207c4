#include <expressions/Variables.h>

#include <gtest/gtest.h>

namespace velmar {
namespace {

TEST(Variables, AreFoundByEquivalentNames) {
    const Variables variables{
        {"NAME", "ascii"}, {"caf\u00E9", "composed"}, {"re\u0301seau", "decomposed"}, {"", "empty"}};
    const struct {
        const char *name;
        const char *value;
    } rows[] = {
        {"NAME", "ascii"},
        {"cafe\u0301", "composed"},
        {"caf\u00E9", "composed"},
        {"r\u00E9seau", "decomposed"},
        {"", "empty"},
        {"name", nullptr},
        {"cafe", nullptr},
    };
    for (const auto &[name, value] : rows) {
        const std::string *found = VariableLookup(variables).find(name);
        ASSERT_EQ(found != nullptr, value != nullptr) << name;
        EXPECT_TRUE(found == nullptr || *found == value) << name;
    }
}

TEST(Variables, StandBehindNamedConditions) {
    const Variables variables{{"ready", "no"}, {"OTHER", "value"}};
    const Variables named{{"ready", "true"}};
    const VariableLookup lookup(variables, &named);
    EXPECT_EQ(*lookup.find("ready"), "true");
    EXPECT_EQ(*lookup.find("OTHER"), "value");
    EXPECT_EQ(lookup.find("neither"), nullptr);
}

} // namespace
} // namespace velmar
