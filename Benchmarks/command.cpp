// Benchmarks of the command service. A hundred sequential runs of a program that does nothing; the reference
// only starts it and waits for it. Parsing of a megabyte of hostile raw command; the reference is half of it,
// so that a ratio near 2 shows linear time.
#include "../Libraries/command-runner/src/RawCommand.h"
#include "Median.h"

#include <command-runner/CommandLineService.h>

#include <fmt/format.h>

#include <chrono>
#include <cstdlib>
#include <semaphore>
#include <string>
#include <utility>
#include <vector>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace velmar;

constexpr int rounds = 21;
constexpr int runs = 100;
constexpr const char *program = "/usr/bin/true";

void runBare() {
    pid_t id = 0;
    int status = -1;
    char *const arguments[] = {const_cast<char *>(program), nullptr};
    if (posix_spawn(&id, program, nullptr, nullptr, arguments, environ) != 0 ||
        waitpid(id, &status, 0) != id || status != 0) {
        std::abort();
    }
}

void runThroughService() {
    std::binary_semaphore completed(0);
    CommandLineService::execute(program, {}, [&](const Result<std::string> &result) {
        if (!result || !result->empty()) {
            std::abort();
        }
        completed.release();
    });
    completed.acquire();
}

template <class Function>
double microseconds(int count, const Function &function) {
    const auto start = std::chrono::steady_clock::now();
    for (int number = 0; number < count; ++number) {
        function();
    }
    const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;
    return time.count() / count;
}

// Returns "a ", which guarantees a word, followed by repetitions of a text.
std::string repeated(std::size_t length, const std::string &text) {
    std::string whole = "a ";
    while (whole.size() < length) {
        whole += text;
    }
    return whole;
}

double microsecondsToTakeApart(const std::string &text) {
    std::vector<double> times;
    for (int round = 0; round < 3; ++round) {
        times.push_back(microseconds(1, [&] { const RawCommand command(text); }));
    }
    return median(times);
}

} // namespace

int main() {
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(microseconds(runs, runThroughService));
        theirs.push_back(microseconds(runs, runBare));
    }
    fmt::print("command ours={:.1f}us reference={:.1f}us ratio={:.2f} goal=1.5\n", median(ours),
               median(theirs), median(ours) / median(theirs));

    constexpr std::size_t megabyte = 1U << 20;
    const std::pair<const char *, const char *> shapes[] = {
        {"words", "word "},       {"open-quotes", "\"a "}, {"crossed-quotes", "' \""},
        {"half-quoted", "x\"a "}, {"pieces", "|a"},
    };
    for (const auto &[name, text] : shapes) {
        const double whole = microsecondsToTakeApart(repeated(megabyte, text));
        const double half = microsecondsToTakeApart(repeated(megabyte / 2, text));
        fmt::print("command-{} ours={:.0f}us reference={:.0f}us ratio={:.2f} goal=2.5\n", name, whole, half,
                   whole / half);
    }
}
