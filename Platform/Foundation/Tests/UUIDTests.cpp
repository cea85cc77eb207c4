#include <Foundation/UUID.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unordered_set>

namespace velmar {
namespace {

TEST(UUID, IsRandomOfVersionFour) {
    std::unordered_set<UUID> all;
    for (int count = 0; count < 1000; ++count) {
        const UUID uuid;
        EXPECT_THAT(uuid.text(), testing::MatchesRegex(
                                     "[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}"));
        all.insert(uuid);
    }
    EXPECT_EQ(all.size(), 1000U);
}

} // namespace
} // namespace velmar
