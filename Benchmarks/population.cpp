// Benchmark of populating a text with four variables from a store of 10,000. The reference is the same text
// with a store of 200.
#include "Median.h"

#include <Configuration/Populatable.h>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int rounds = 201;
constexpr int calls = 2'000;
constexpr std::string_view text =
    "Welcome, ${VARIABLE_7}! Your computer ${VARIABLE_42} has ${VARIABLE_117} of "
    "${VARIABLE_180} programs, and the rest is on its way.";

velmar::Variables variables(int count) {
    velmar::Variables all;
    for (int index = 0; index < count; ++index) {
        all.emplace(fmt::format("VARIABLE_{}", index), fmt::format("value number {}", index));
    }
    return all;
}

double nanoseconds(const velmar::Variables &among) {
    const auto start = Clock::now();
    for (int call = 0; call < calls; ++call) {
        std::string result = velmar::populated(text, among);
        benchmark::DoNotOptimize(result);
    }
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / calls;
}

} // namespace

int main() {
    const velmar::Variables many = variables(10'000);
    const velmar::Variables few = variables(200);
    std::vector<double> amongMany;
    std::vector<double> amongFew;
    for (int round = 0; round < rounds; ++round) {
        amongMany.push_back(nanoseconds(many));
        amongFew.push_back(nanoseconds(few));
    }
    const double ours = median(amongMany);
    const double reference = median(amongFew);
    fmt::print("population ours={:.1f}ns reference={:.1f}ns ratio={:.2f} goal=1.3\n", ours, reference,
               ours / reference);
}
