// Benchmark of reading and decoding a large configuration. The reference is an XML parser that only parses
// the same bytes.
#include "Median.h"

#include <Configuration/Configuration.h>
#include <Foundation/PropertyListDocument.h>
#include <Support/GeneratedConfiguration.h>

#include <fmt/format.h>
#include <pugixml.hpp>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using velmar::PropertyList;

constexpr std::size_t fileSize = 10'000'000;
constexpr int runs = 15;

/// Moves the elements of the array at `keys` of `from` to the array at `keys` of `to`.
void add(PropertyList &to, PropertyList &from, std::initializer_list<std::string_view> keys) {
    PropertyList *target = &to;
    PropertyList *source = &from;
    for (const std::string_view key : keys) {
        target = target == nullptr ? nullptr : target->dictionary()->find(key);
        source = source == nullptr ? nullptr : source->dictionary()->find(key);
    }
    if (target != nullptr && source != nullptr) {
        std::ranges::move(*source->array(), std::back_inserter(*target->array()));
    }
}

/// Returns a file of random items of all kinds.
std::string makeFile() {
    constexpr int filesBetweenWeighings = 100;
    velmar::GeneratedConfiguration generator(1);
    PropertyList file = generator.file();
    std::string text;
    while (text.size() < fileSize) {
        for (int count = 0; count < filesBetweenWeighings; ++count) {
            PropertyList more = generator.file();
            add(file, more, {"Slides"});
            add(file, more, {"ActionSets"});
            add(file, more, {"Monitoring", "Monitors"});
        }
        text = file.xml();
    }
    return text;
}

std::size_t decode(const std::string &file) {
    const auto document = velmar::PropertyListDocument::read(file);
    return velmar::Configuration::decode(document.root())->_slides().size();
}

template <class Function>
double secondsOf(const Function &function) {
    const auto start = std::chrono::steady_clock::now();
    function();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Returns the value of a line such as "VmHWM:  1234 kB" in the status of this process, in bytes.
std::size_t memory(std::string_view name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(name)) {
            return std::stoull(line.substr(name.size() + 1)) * 1024;
        }
    }
    return 0;
}

// Returns the peak memory growth of one decoding in bytes, measured in a child process; 0 on failure.
std::size_t peakGrowth(const std::string &file) {
    std::array<int, 2> pipe{};
    if (::pipe(pipe.data()) != 0) {
        return 0;
    }
    const ::pid_t child = ::fork();
    if (child == 0) {
        ::malloc_trim(0);
        std::ofstream("/proc/self/clear_refs") << "5"; // Resets the peak.
        const std::size_t before = memory("VmRSS");
        decode(file);
        const std::size_t growth = memory("VmHWM") - before;
        ::_exit(::write(pipe[1], &growth, sizeof growth) == sizeof growth ? 0 : 1);
    }
    std::size_t growth = 0;
    ::close(pipe[1]);
    const bool isRead = ::read(pipe[0], &growth, sizeof growth) == sizeof growth;
    ::close(pipe[0]);
    ::waitpid(child, nullptr, 0);
    return isRead ? growth : 0;
}

void print(std::string_view name, double ours, double reference, double goal) {
    fmt::print("{} ours={:.6g} reference={:.6g} ratio={:.3f} goal={:.1f}\n", name, ours, reference,
               ours / reference, goal);
}

} // namespace

int main() {
    const std::string file = makeFile();
    const std::size_t growth = peakGrowth(file);

    std::vector<double> ours;
    std::vector<double> reference;
    double readingAlone = 0;
    for (int run = 0; run < runs; ++run) {
        ours.push_back(secondsOf([&] {
            if (decode(file) == 0) {
                std::abort();
            }
        }));
        reference.push_back(secondsOf([&] {
            pugi::xml_document document;
            if (!document.load_buffer(file.data(), file.size())) {
                std::abort();
            }
        }));
        readingAlone +=
            secondsOf([&] { static_cast<void>(velmar::PropertyListDocument::read(file)); }) / runs;
    }
    fmt::print(stderr, "decode: {} bytes, reading the property list alone takes {:.1f} ms\n", file.size(),
               readingAlone * 1000);
    print("decode", median(ours), median(reference), 4.0);
    if (growth == 0) {
        fmt::print(stderr, "decode: the memory could not be measured\n");
        return 1;
    }
    print("decode-memory", static_cast<double>(growth), static_cast<double>(file.size()), 8.0);
}
