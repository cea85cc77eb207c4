#include <Dispatch/DispatchQueue.h>
#include <Foundation/ProcessChain.h>
#include <Foundation/ProcessError.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <future>
#include <memory>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>

namespace velmar {
namespace {

using namespace std::chrono_literals;
using testing::MatchesRegex;

Process shell(const std::string &script) {
    return {"/bin/sh", {"-c", script}};
}

// Returns the output of a chain, with "..." appended if it was cut at the limit.
std::string outputOf(const std::vector<Process> &processes, std::size_t limit = 1 << 20) {
    const auto promise = std::make_shared<std::promise<ProcessOutput>>();
    auto future = promise->get_future();
    ProcessChain chain;
    for (const Process &process : processes) {
        chain.launch(process);
    }
    chain.readOutput(limit, [promise](ProcessOutput output) { promise->set_value(std::move(output)); });
    if (future.wait_for(60s) != std::future_status::ready) {
        return "no end";
    }
    const ProcessOutput output = future.get();
    return output.bytes + (output.isCut ? "..." : "");
}

bool hasNoChildrenSoon() {
    siginfo_t child{};
    const auto deadline = std::chrono::steady_clock::now() + 30s;
    for (; std::chrono::steady_clock::now() < deadline; sched_yield()) {
        if (waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) != 0) {
            return true;
        }
    }
    return false;
}

TEST(ProcessChain, GivesAChildNothingButItsStandardStreams) {
    const int leaked = open("/dev/null", O_RDONLY); // NOLINT: inheritable on purpose
    sigset_t some;
    sigemptyset(&some);
    sigaddset(&some, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &some, nullptr);
    const auto former = signal(SIGPIPE, SIG_IGN);
    // Descriptor 3 is the directory that ls lists.
    EXPECT_EQ(outputOf({{"/bin/ls", {"/proc/self/fd"}}}), "0\n1\n2\n3\n");
    for (const std::string name : {"PIPE", "TERM"}) {
        EXPECT_EQ(outputOf({shell("kill -" + name + " $$; echo immune")}), "");
    }
    EXPECT_EQ(outputOf({{"/usr/bin/readlink", {"/proc/self/fd/0"}}}), "/dev/null\n");
    EXPECT_EQ(outputOf({shell("set -- $(cat /proc/$$/stat); test $1 = $5 && echo own")}), "own\n");
    signal(SIGPIPE, former);
    pthread_sigmask(SIG_UNBLOCK, &some, nullptr);
    close(leaked);
}

TEST(ProcessChain, KeepsAtMostTheLimit) {
    EXPECT_EQ(outputOf({shell("printf 12345")}, 5), "12345");
    EXPECT_EQ(outputOf({shell("printf 123456")}, 5), "12345...");
}

TEST(ProcessChain, OneThatIsGivenUpEndsWhatRuns) {
    for (const std::string failing : {"/nonexistent", ""}) {
        ProcessChain chain;
        chain.launch({"/bin/sleep", {"1000"}});
        chain.launch(shell("sleep 1000 | sleep 1000"));
        EXPECT_THROW(chain.launch({failing, {}}), ProcessError);
    }
    EXPECT_TRUE(hasNoChildrenSoon());
}

TEST(ProcessChain, RunningOutOfDescriptorsIsAnError) {
    outputOf({shell("true")}); // opens the pool's own descriptors
    rlimit former{};
    getrlimit(RLIMIT_NOFILE, &former);
    for (rlim_t room = 4; room < 40; ++room) { // covers every point of failure
        const rlimit few{room, former.rlim_max};
        setrlimit(RLIMIT_NOFILE, &few);
        std::string outcome;
        try {
            outcome = outputOf(std::vector<Process>(12, {"/bin/cat", {}}));
        } catch (const ProcessError &error) {
            setrlimit(RLIMIT_NOFILE, &former); // the sanitizer's checks need descriptors
            outcome = error.errorDescription();
        }
        setrlimit(RLIMIT_NOFILE, &former);
        EXPECT_THAT(outcome, MatchesRegex("|.*: Too many open files\\.")) << room;
    }
    EXPECT_TRUE(hasNoChildrenSoon());
}

// Every case runs in its own process.
TEST(ProcessChainDeathTest, WorksInUnusualSurroundingsAndHoldsUpNoEnd) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto run = [] {
        std::_Exit(outputOf({shell("cat; echo a"), shell("cat; echo b")}) == "a\nb\n" ? 3 : 4);
    };
    EXPECT_EXIT((close(0), close(1), run()), testing::ExitedWithCode(3), "");
    EXPECT_EXIT((signal(SIGCHLD, SIG_IGN), run()), testing::ExitedWithCode(3), "");
    const auto leave = [] {
        ProcessChain chain;
        chain.launch({"/bin/sleep", {"30"}});
        chain.readOutput(1, [](const ProcessOutput &) { std::_Exit(4); });
        std::_Exit(DispatchQueue::shutdown(10s) ? 3 : 5);
    };
    EXPECT_EXIT(leave(), testing::ExitedWithCode(3), "");
}

} // namespace
} // namespace velmar
