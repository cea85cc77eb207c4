#include <Dispatch/ThreadSafe.h>

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace velmar {
namespace {

TEST(ThreadSafe, ChangesAsOneStep) {
    ThreadSafe<std::map<std::string, int>> counts({}, "counts");
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([&] {
            for (int round = 0; round < 1000; ++round) {
                counts.mutate([](auto &values) { ++values["a"]; });
                EXPECT_GT(counts.withValue([](const auto &values) { return values.at("a"); }), 0);
            }
        });
    }
    for (auto &thread : threads) {
        thread.join();
    }
    EXPECT_EQ(counts.value(), (std::map<std::string, int>{{"a", 4000}}));
}

TEST(ThreadSafe, DropsTheFormerValueOutsideOfItsLock) {
    // A destructor that reads the value would deadlock under the lock.
    struct Reader {
        ThreadSafe<std::shared_ptr<Reader>> *owner;
        ~Reader() { EXPECT_EQ(owner->value(), nullptr); }
    };
    ThreadSafe<std::shared_ptr<Reader>> value(nullptr, "reader");
    value.set(std::shared_ptr<Reader>(new Reader{&value}));
    value.set(nullptr);
    EXPECT_EQ(value.value(), nullptr);
}

} // namespace
} // namespace velmar
