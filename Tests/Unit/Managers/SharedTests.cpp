#include <Managers/Shared.h>

#include <gtest/gtest.h>

namespace velmar {
namespace {

struct Named {
    explicit Named(int value_) : value(value_) {}
    int value;
};

TEST(Shared, GivesWhatWasInstalledForAsLongAsItIs) {
    EXPECT_THROW(static_cast<void>(Shared<Named>::instance()), VelmarError);
    const auto first = std::make_shared<Named>(1);
    {
        const Shared<Named>::Scope outer(first);
        {
            const Shared<Named>::Scope inner(std::make_shared<Named>(2));
            EXPECT_EQ(Shared<Named>::instance()->value, 2);
        }
        EXPECT_EQ(Shared<Named>::instance(), first);
    }
    EXPECT_THROW(static_cast<void>(Shared<Named>::instance()), VelmarError);
    EXPECT_EQ(first.use_count(), 1) << "the end of the scope lets go of it";
}

} // namespace
} // namespace velmar
