// Reading and decoding a large configuration, against an XML parser that only parses the same bytes.
#include <Configuration/Configuration.h>
#include <Foundation/PropertyList.h>

#include <fmt/format.h>
#include <pugixml.hpp>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr std::size_t fileSize = 10'000'000;
constexpr int runs = 15;

constexpr std::string_view header = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist SYSTEM "file://localhost/System/Library/DTDs/PropertyList.dtd">
<plist version="1.0">
<dict>
	<key>ColorStyles</key>
	<dict>
		<key>Ink</key>
		<dict>
			<key>DarkMode</key>
			<string>#F2F4F7</string>
			<key>LightMode</key>
			<string>#17202B</string>
		</dict>
	</dict>
	<key>FontStyles</key>
	<dict>
		<key>Title</key>
		<dict>
			<key>Color</key>
			<string>Ink</string>
			<key>Size</key>
			<integer>28</integer>
			<key>SystemFontWeight</key>
			<string>Bold</string>
		</dict>
	</dict>
	<key>Slides</key>
	<array>
)";

// A text in the style of a book.
std::string title(std::string_view text) {
    return fmt::format(R"(						<dict>
							<key>Type</key>
							<string>Text</string>
							<key>Text</key>
							<string>{}</string>
							<key>TextFontConfiguration</key>
							<string>Title</string>
						</dict>
)",
                       text);
}

// A title, a text with a font of its own, a blank between them, in two containers.
std::string slide(std::size_t number) {
    return fmt::format(R"(		<dict>
			<key>Containers</key>
			<array>
				<dict>
					<key>Components</key>
					<array>
{4}						<dict>
							<key>Type</key>
							<string>Spacer</string>
							<key>Height</key>
							<real>{1}.5</real>
						</dict>
						<dict>
							<key>Type</key>
							<string>Text</string>
							<key>Text</key>
							<string>Your computer is being prepared &amp; will be ready in about {1} minutes. Meanwhile, read on: what you find here tells how to reach your mail, your files and the people who help.</string>
							<key>TextFontConfiguration</key>
							<dict>
								<key>Size</key>
								<integer>{1}</integer>
								<key>TextAlignment</key>
								<string>Justified</string>
								<key>Color</key>
								<dict>
									<key>DarkMode</key>
									<string>#FFFFFF</string>
									<key>LightMode</key>
									<string>#{2:06X}</string>
								</dict>
							</dict>
						</dict>
					</array>
					<key>Margins</key>
					<dict>
						<key>Top</key>
						<integer>12</integer>
						<key>Left</key>
						<real>8.25</real>
					</dict>
					<key>WidthRatio</key>
					<real>0.5</real>
				</dict>
				<dict>
					<key>Components</key>
					<array>
{5}					</array>
					<key>BorderColor</key>
					<string>Ink</string>
					<key>WidthRatio</key>
					<real>0.5</real>
				</dict>
			</array>
			<key>HidePreviousButton</key>
			<{3}/>
		</dict>
)",
                       number, 10 + number % 20, number * 7919 % 0xFFFFFF, number == 0 ? "true" : "false",
                       title(fmt::format("Step {} of the first minutes", number)),
                       title(fmt::format("Réseau, Schlüssel, 鍵: nº {}", number)));
}

std::string makeFile() {
    std::string file;
    file.reserve(fileSize + 10'000); // In one piece, so that no freed memory hides what the decoding takes.
    file += header;
    for (std::size_t number = 0; file.size() < fileSize; ++number) {
        file += slide(number);
    }
    file += "\t</array>\n</dict>\n</plist>\n";
    return file;
}

std::size_t decode(const std::string &file) {
    const auto document = velmar::PropertyList::read(file);
    return velmar::Configuration::decode(document.value)->_slides().size();
}

template <class Function>
double secondsOf(const Function &function) {
    const auto start = std::chrono::steady_clock::now();
    function();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

// A line such as "VmHWM:  1234 kB" of the process's own status, in bytes.
std::size_t memory(std::string_view name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(name)) {
            return std::stoull(line.substr(name.size() + 1)) * 1024;
        }
    }
    return 0;
}

// The most that a decoding holds at once, measured in a process of its own.
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
        readingAlone += secondsOf([&] { static_cast<void>(velmar::PropertyList::read(file)); }) / runs;
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
