#include <command-runner/CommandLineService.h>

#include <command-runner/CompletionError.h>

#include <Foundation/Process.h>
#include <Foundation/ProcessError.h>
#include <Testing/TemporaryDirectory.h>

#include "../../logger/Tests/RecordingDestination.h"
#include <logger/ScopedDestinations.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <future>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <sys/wait.h>

namespace velmar {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// What an operation, called with a completion, completes with.
template <class Operation>
Result<std::string> resultOf(const Operation &operation) {
    const auto promise = std::make_shared<std::promise<Result<std::string>>>();
    auto future = promise->get_future();
    operation([promise](Result<std::string> result) { promise->set_value(std::move(result)); });
    if (future.wait_for(60s) != std::future_status::ready)
        throw std::runtime_error("no completion");
    return future.get();
}

Result<std::string> run(const std::string &rawCommand) {
    return resultOf([&](auto completion) { CommandLineService::execute(rawCommand, completion); });
}

Result<std::string> run(const std::string &command, const std::vector<std::string> &arguments) {
    return resultOf([&](auto completion) { CommandLineService::execute(command, arguments, completion); });
}

Result<std::string> runScript(const std::string &path, const std::vector<std::string> &arguments) {
    return resultOf([&](auto completion) { CommandLineService::executeScript(path, arguments, completion); });
}

std::string textOf(const Result<std::string> &result) {
    return result ? *result : "failed: " + result.error()->errorDescription();
}

// Keeps what is logged.
struct Log {
    std::shared_ptr<RecordingDestination> destination = [] {
        DestinationSettings settings;
        settings.asynchronously = false;
        return std::make_shared<RecordingDestination>(settings);
    }();
    ScopedDestinations scope{{destination}};
};

TEST(CommandLineService, GivesWhatARawCommandPrints) {
    const std::pair<std::string, std::string> cases[] = {
        {R"(echo "a b")", "a b"},
        {R"(/usr/bin/printf [%s] a "b c" 'd "e"' f'g "" '' ")", "[a][b c][d e][fg][][]"},
        {R"(printf %s\n b a b | sort | uniq -c | wc -l)", "2"},
        {"printf '\\n\\t text \xC2\xA0\\n\\n'", "text"},
        {"\xE3\x80\x80 echo\xC2\xA0schön\n", "schön"},
        {"true", ""},
        {"sh -c 'echo kept; exit 3'", "kept"},
        {"sh -c 'kill -9 $$'", ""},
        {"cat", ""}, // has nothing to read
        {R"(echo --x="a b" c)", "c"},
        {R"(echo one "two 'three don't)", "one three dont"},
        {R"(yes | head -n 1)", "y"},
        {"sh -c 'exec 1>&-; sleep 0.05; exit 1'", ""},
        {"sh -c '(sleep 0.05; echo late) & echo early'", "early\nlate"},
    };
    for (const auto &[command, text] : cases)
        EXPECT_EQ(textOf(run(command)), text) << command;
}

TEST(CommandLineService, RefusesARawCommandThatNamesNoProgram) {
    for (const std::string command : {"", " \t\n", "|", "ls |", "| ls", "ls || ls", "echo \"a|b\"", "\"ls"}) {
        const auto result = run(command);
        ASSERT_FALSE(result) << command;
        const auto error = std::dynamic_pointer_cast<const CompletionError>(result.error());
        ASSERT_TRUE(error != nullptr) << command;
        EXPECT_EQ(error->as<CompletionError::NoProcessesBuiltFromRawCommand>()->command, command);
    }
}

TEST(CommandLineService, WarnsOfWhatItLeavesOut) {
    const Log log;
    EXPECT_EQ(textOf(run(R"(echo --x="a b" c "d)")), "c");
    EXPECT_THAT(log.destination->messages(),
                ElementsAre(R"(The command `echo --x="a b" c "d` is executed without `--x="a b"` and `"d`)"
                            ": quotes enclose whole words"));
}

TEST(CommandLineService, OutputThatIsNoTextIsAnError) {
    const auto error = std::dynamic_pointer_cast<const CompletionError>(run("printf a\\377").error());
    EXPECT_TRUE(error != nullptr && error->as<CompletionError::NilString>() != nullptr);
}

TEST(CommandLineService, PassesArgumentsAsTheyAre) {
    const std::vector<std::string> arguments = {"[%s]", "a b", "", "|", "\"q\"", "$HOME", "-x"};
    EXPECT_EQ(textOf(run("printf", arguments)), R"([a b][][|]["q"][$HOME][-x])");
    EXPECT_EQ(textOf(run("/usr/bin/printf", arguments)), R"([a b][][|]["q"][$HOME][-x])");
}

TEST(CommandLineService, TellsWhyALaunchFailed) {
    const TemporaryDirectory directory;
    const std::string plain = directory.write("plain", "text");
    const std::string orphan = directory.write("orphan", "#!/nonexistent/sh\n");
    std::filesystem::permissions(orphan, std::filesystem::perms::owner_all);
    const std::string mark = directory.path("mark");
    struct Case {
        std::string command;
        std::vector<std::string> arguments;
        std::string sentence;
    };
    const Case cases[] = {
        {"no-such-command", {"x"}, "The command 'no-such-command' was not found."},
        {"", {}, "The command '' was not found."},
        {"-a", {}, "The command '-a' was not found."},
        {"/nonexistent", {}, "The program '/nonexistent' couldn't be launched: No such file or directory."},
        {"/usr", {}, "The program '/usr' couldn't be launched: Is a directory."},
        {plain, {}, "The program '" + plain + "' couldn't be launched: Permission denied."},
        {orphan,
         {},
         "The program '" + orphan + "' couldn't be launched: the interpreter that it names is missing."},
        {"/bin/echo",
         {std::string("a\0b", 3)},
         "The program '/bin/echo' couldn't be launched: its path or an argument holds a NUL byte."},
        {"/bin/echo",
         {std::string(std::size_t{8} << 20, 'x')},
         "The program '/bin/echo' couldn't be launched: Argument list too long."},
    };
    for (const auto &[command, arguments, sentence] : cases) {
        const Log log;
        const auto result = run(command, arguments);
        EXPECT_EQ(textOf(result), "failed: " + sentence);
        EXPECT_TRUE(!result && std::dynamic_pointer_cast<const ProcessError>(result.error()) != nullptr);
        EXPECT_THAT(log.destination->messages(),
                    ElementsAre("Error while executing the process `" +
                                Process{command, arguments}.description() + "`. " + sentence));
    }
    // Not even the first one is started.
    EXPECT_THAT(textOf(run("touch " + mark + " | no-such-command")), HasSubstr("not found"));
    EXPECT_THAT(textOf(run("touch " + mark + " | " + plain)), HasSubstr("Permission denied"));
    EXPECT_FALSE(std::filesystem::exists(mark));
}

TEST(CommandLineService, RunsScripts) {
    const TemporaryDirectory directory;
    for (const std::string name : {"script", "with blank", "a=b", "-i"}) {
        const std::string path = directory.write(name, "#!/bin/sh\nprintf '[%s]' \"$@\"; exit 2\n");
        EXPECT_EQ(textOf(runScript(path, {})),
                  "failed: The program '" + path + "' couldn't be launched: Permission denied.");
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
        EXPECT_EQ(textOf(runScript(path, {"a b", "", "A=1"})), "[a b][][A=1]") << name;
        EXPECT_EQ(textOf(runScript(std::filesystem::relative(path).string(), {"x"})), "[x]") << name;
    }
    EXPECT_EQ(textOf(runScript("ls", {})),
              "failed: The program './ls' couldn't be launched: No such file or directory.");
}

TEST(CommandLineService, CutsEndlessOutputBetweenCharacters) {
    const Log log;
    // 64 MiB is no multiple of three.
    const auto result = run("/bin/sh", {"-c", "yes € | tr -d '\\n' | head -c 70000001"});
    ASSERT_TRUE(result);
    EXPECT_EQ(result->size(), CommandLineService::maximumOutput - 1);
    EXPECT_TRUE(result->ends_with("€"));
    EXPECT_THAT(log.destination->messages(), ElementsAre(HasSubstr("was cut at 64 MiB")));
}

TEST(CommandLineService, ManyAtOnceLeaveNothingBehind) {
    const auto descriptors = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    };
    EXPECT_EQ(textOf(run("true | true")), "");
    const auto before = descriptors();
    std::vector<std::future<Result<std::string>>> results;
    results.reserve(60);
    for (int number = 0; number < 60; ++number)
        results.push_back(std::async(std::launch::async, [number] {
            return number % 3 == 0 ? run("echo a | /nonexistent") : run("yes | cat | head -c 2");
        }));
    for (std::size_t number = 0; number < results.size(); ++number)
        EXPECT_EQ(textOf(results[number].get()).substr(0, 6), number % 3 == 0 ? "failed" : "y");
    // The others of a chain end and are reaped soon after the last.
    siginfo_t child{};
    const auto hasChildren = [&] { return waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) == 0; };
    const auto deadline = std::chrono::steady_clock::now() + 30s;
    while ((hasChildren() || descriptors() > before) && std::chrono::steady_clock::now() < deadline)
        std::this_thread::yield();
    EXPECT_FALSE(hasChildren());
    EXPECT_LE(descriptors(), before); // of those before some were still open then
}

} // namespace
} // namespace velmar
