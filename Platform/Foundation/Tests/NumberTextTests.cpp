#include <Foundation/NumberText.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace velmar {
namespace {

using namespace std::string_literals;

TEST(NumberText, IsWrittenWithAFraction) {
    const std::vector<std::pair<double, const char *>> rows = {
        {0.0, "0.0"},       {-0.0, "-0.0"},     {1, "1.0"},           {0.1 + 0.2, "0.30000000000000004"},
        {0.0001, "0.0001"}, {0.00001, "1e-05"}, {100000, "100000.0"}, {1e16, "10000000000000000.0"},
        {1e17, "1e+17"}};
    for (const auto &[number, text] : rows) {
        EXPECT_EQ(textOf(number), text);
    }
}

TEST(NumberText, ReadsAsANumberOnlyAsAWhole) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const std::vector<std::pair<std::string, std::optional<double>>> rows = {
        {"0", 0},
        {"9007199254740993", 9007199254740992.0},
        {"+5", 5},
        {"1.", 1},
        {".5", 0.5},
        {"0x1F", 31},
        {"1e999", infinity},
        {"-INFINITY", -infinity},
        {"", {}},
        {" 1", {}},
        {"\v1", {}},
        {"1\0"s, {}},
        {"1,5", {}},
        {"one", {}},
        {"\u00A01", {}}};
    for (const auto &[text, number] : rows) {
        EXPECT_EQ(numberOf(text), number) << text;
    }
    EXPECT_TRUE(std::isnan(numberOf("nan").value_or(0)));
}

} // namespace
} // namespace velmar
