#include <command-runner/CommandLineService.h>

#include <Dispatch/UncaughtHandler.h>
#include <Support/RecordedLog.h>
#include <Testing/TemporaryDirectory.h>
#include <command-runner/CompletionError.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <future>
#include <memory>
#include <stdexcept>
#include <thread>
#include <tuple>

#include <sys/wait.h>

namespace velmar {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using Strings = std::vector<std::string>;

// Starts an operation and returns the future of its result.
std::future<Result<std::string>> start(const auto &operation, auto... arguments) {
    const auto promise = std::make_shared<std::promise<Result<std::string>>>();
    operation(arguments..., [promise](Result<std::string> result) { promise->set_value(std::move(result)); });
    return promise->get_future();
}

// Returns the text, or "!" and the message of the error.
std::string outcomeOf(std::future<Result<std::string>> future) {
    if (future.wait_for(60s) != std::future_status::ready) {
        throw std::runtime_error("no completion");
    }
    const Result<std::string> result = future.get();
    return result ? *result : "!" + result.error()->errorDescription();
}

constexpr auto executeRaw = [](const std::string &command, CommandLineService::Completion completion) {
    CommandLineService::execute(command, std::move(completion));
};
constexpr auto execute = [](const std::string &command, const Strings &arguments,
                            CommandLineService::Completion completion) {
    CommandLineService::execute(command, arguments, std::move(completion));
};

TEST(CommandLineService, RawCommandsGiveWhatTheyPrint) {
    const std::pair<std::string, std::string> cases[] = {
        {R"(echo "a b")", "a b"},
        {R"(/usr/bin/printf [%s] a "b c" 'd "e"' f'g "" '' ")", "[a][b c][d e][fg][][]"},
        {R"(printf %s\n b a b | sort | uniq -c | wc -l)", "2"},
        {"printf '\\n\\t text \xC2\xA0\\n\\n'", "text"},
        {"\xE3\x80\x80 echo\xC2\xA0schön\n", "schön"},
        {"true", ""},
        {"sh -c 'echo kept; kill -9 $$'", "kept"},
        {"cat", ""}, // has no input
        {R"(echo --x="a b" c)", "c"},
        {R"(echo one "two 'three don't)", "one three dont"},
        {R"(yes | head -n 1)", "y"},
        {"sh -c 'exec 1>&-; sleep 0.05; exit 1'", ""},
        {"sh -c '(sleep 0.05; echo late) & echo early'", "early\nlate"},
        {"printf a\\377", "!The output of the command is not valid UTF-8."},
    };
    for (const auto &[command, outcome] : cases) {
        EXPECT_EQ(outcomeOf(start(executeRaw, command)), outcome);
    }
    for (const std::string command : {"", " \t\n", "ls |", "| ls", "ls || ls", "echo \"a|b\"", "\"ls"}) {
        EXPECT_EQ(outcomeOf(start(executeRaw, command)),
                  "!No processes could be built from the command '" + command + "'.");
    }
    const auto error = start(executeRaw, std::string("|")).get().error();
    EXPECT_NE(std::dynamic_pointer_cast<const CompletionError>(error), nullptr);
}

TEST(CommandLineService, TellsWhatItLeavesOutAndCutsOffInTheLog) {
    const RecordedLog log;
    EXPECT_EQ(outcomeOf(start(executeRaw, std::string(R"(echo --x="a b" c "d)"))), "c");
    EXPECT_THAT(log.lines(), ElementsAre(R"(warning: The command `echo --x="a b" c "d` is executed without )"
                                         R"(`--x="a b"` and `"d`: quotes enclose whole words)"));
    // 64 MiB is not a multiple of the character's three bytes.
    const std::string endless = "yes € | tr -d '\\n' | head -c 70000001";
    const std::string text = outcomeOf(start(execute, std::string("/bin/sh"), Strings{"-c", endless}));
    EXPECT_EQ(text.size(), CommandLineService::maximumOutput - 1);
    EXPECT_TRUE(text.ends_with("€"));
    EXPECT_THAT(log.lines().back(), HasSubstr("was cut at 64 MiB"));
}

TEST(CommandLineService, TellsWhyALaunchFailed) {
    const TemporaryDirectory directory;
    const std::string plain = directory.write("plain", "text");
    const std::string orphan = directory.write("orphan", "#!/nonexistent/sh\n");
    std::filesystem::permissions(orphan, std::filesystem::perms::owner_all);
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"no-such-command", "x", "The command 'no-such-command' was not found."},
        {"", "", "The command '' was not found."},
        {"-a", "", "The command '-a' was not found."},
        {"/nonexistent", "", "The program '/nonexistent' couldn't be launched: No such file or directory."},
        {"/usr", "", "The program '/usr' couldn't be launched: Is a directory."},
        {plain, "", "The program '" + plain + "' couldn't be launched: Permission denied."},
        {orphan, "",
         "The program '" + orphan + "' couldn't be launched: the interpreter that it names is missing."},
        {"/bin/echo",
         {"a\0b", 3},
         "The program '/bin/echo' couldn't be launched: its path or an argument holds a NUL byte."},
        {"/bin/echo", std::string(std::size_t{8} << 20, 'x'),
         "The program '/bin/echo' couldn't be launched: Argument list too long."},
    };
    for (const auto &[command, argument, sentence] : cases) {
        const RecordedLog log;
        EXPECT_EQ(outcomeOf(start(execute, command, Strings{argument})), "!" + sentence);
        EXPECT_THAT(log.lines(),
                    ElementsAre(fmt::format("error: Error while executing the process `{} {}`. {}", command,
                                            argument, sentence)));
    }
    // No process is started, not even the first.
    const std::string mark = directory.path("mark");
    for (const std::string &second : {plain, std::string("no-such-command")}) {
        EXPECT_THAT(outcomeOf(start(executeRaw, fmt::format("touch {} | {}", mark, second))),
                    HasSubstr("!The "));
    }
    EXPECT_FALSE(std::filesystem::exists(mark));
}

TEST(CommandLineService, ReportsWhatACompletionThrowsAndCallsItOnce) {
    int calls = 0;
    for (const std::string command : {"echo a", "no-such-command", "/nonexistent"}) {
        const auto reported = std::make_shared<std::promise<std::string>>();
        setUncaughtHandler([reported](std::string_view, const std::exception_ptr &error) {
            reported->set_value(std::string(textOf(error)));
        });
        executeRaw(command, [&](const Result<std::string> &) {
            ++calls;
            throw std::runtime_error(command);
        });
        EXPECT_EQ(reported->get_future().get(), command);
    }
    EXPECT_EQ(calls, 3);
    setUncaughtHandler({});
}

TEST(CommandLineService, PassesArgumentsAsTheyAre) {
    const TemporaryDirectory directory;
    const Strings arguments = {"[%s]", "a b", "", "|", "\"q\"", "$HOME", "A=1"};
    for (const std::string program : {"printf", "/usr/bin/printf"}) {
        EXPECT_EQ(outcomeOf(start(execute, program, arguments)), R"([a b][][|]["q"][$HOME][A=1])");
    }
    for (const std::string name : {"script", "with blank", "a=b", "-i"}) {
        const std::string path = directory.write(name, "#!/bin/sh\nprintf \"$@\"; exit 2\n");
        const std::string relative = std::filesystem::relative(path).string();
        EXPECT_THAT(outcomeOf(start(CommandLineService::executeScript, path, arguments)),
                    HasSubstr("Permission denied"));
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
        for (const std::string &script : {path, relative}) {
            EXPECT_EQ(outcomeOf(start(CommandLineService::executeScript, script, arguments)),
                      R"([a b][][|]["q"][$HOME][A=1])");
        }
    }
    // The search path is not used.
    EXPECT_THAT(outcomeOf(start(CommandLineService::executeScript, std::string("ls"), Strings{})),
                HasSubstr("No such file"));
}

TEST(CommandLineService, ManyAtOnceLeaveNoChildBehind) {
    std::vector<std::future<Result<std::string>>> results(60);
    for (std::size_t number = 0; number < results.size(); ++number) {
        results[number] =
            start(executeRaw, std::string(number % 3 == 0 ? "yes | /nonexistent" : "yes | cat | head -c 2"));
    }
    for (std::size_t number = 0; number < results.size(); ++number) {
        EXPECT_EQ(outcomeOf(std::move(results[number])).front(), number % 3 == 0 ? '!' : 'y');
    }
    // The other processes of a chain may end after the last one.
    siginfo_t child{};
    const auto hasChildren = [&] { return waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) == 0; };
    const auto deadline = std::chrono::steady_clock::now() + 30s;
    while (hasChildren() && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::yield();
    }
    EXPECT_FALSE(hasChildren());
}

} // namespace
} // namespace velmar
