#pragma once

#include <CommandLine.h>

#include <Testing/TemporaryDirectory.h>
#include <Testing/TestIdentityAuthority.h>

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <sstream>
#include <string_view>
#include <utility>

namespace velmar {

/// Runs command lines on files in a temporary directory.
class CommandLineTest : public testing::Test {
protected:
    // Returns the output, with the directory's path removed everywhere. The errors are in complaints_.
    std::string run(std::vector<std::string> arguments, ExitStatus expected, const std::string &input = {}) {
        std::istringstream in(input);
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(runCommandLine(std::move(arguments), {authority_, in, out, err}), expected)
            << out.str() << err.str();
        complaints_ = withoutDirectory(err.str());
        return withoutDirectory(out.str());
    }

    std::string check(std::string_view content, ExitStatus expected,
                      const std::string &option = "--no-admission") {
        return run({"check", option, "--no-admission", write(content)}, expected);
    }

    std::string write(std::string_view content) const { return directory_.write("x.plist", content); }

    // Returns a configuration that is valid except for the given keys. `component` holds further keys of its
    // only component.
    static std::string document(std::string_view keys, std::string_view component = {}) {
        return fmt::format("<plist version=\"1.0\"><dict>\n{}<key>Slides</key>\n"
                           "<array><dict><key>Containers</key><array><dict>\n"
                           "<key>Components</key><array><dict>\n"
                           "<key>Type</key><string>Text</string><key>Text</key><string>Hello.</string>\n"
                           "{}</dict></array></dict></array></dict></array>\n</dict></plist>\n",
                           keys, component);
    }

    TemporaryDirectory directory_;
    TestIdentityAuthority authority_;
    std::string complaints_;

private:
    std::string withoutDirectory(std::string text) const {
        const std::string directory = directory_.path() + '/';
        for (auto at = text.find(directory); at != std::string::npos; at = text.find(directory)) {
            text.erase(at, directory.size());
        }
        return text;
    }
};

} // namespace velmar
