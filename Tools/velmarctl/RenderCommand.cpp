#include <RenderCommand.h>

#include <ConfigurationCheck.h>
#include <VariableOption.h>

#include <Configuration/Configuration.h>
#include <Foundation/NumberText.h>
#include <command-runner/CommandLineService.h>

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <future>
#include <regex>
#include <sstream>

namespace velmar {

namespace {

constexpr int longestSide = 8192; // Points.
constexpr double smallestScale = 0.5;
constexpr double largestScale = 4;

std::string sizeProblem(const std::string &text) {
    static const std::regex form("([0-9]{1,4})x([0-9]{1,4})");
    std::smatch sides;
    const auto isSide = [](int side) { return side >= 1 && side <= longestSide; };
    const bool isSize =
        std::regex_match(text, sides, form) && isSide(std::stoi(sides[1])) && isSide(std::stoi(sides[2]));
    return isSize ? std::string()
                  : fmt::format("'{}' is no size: it is WxH in points, such as 800x600, each from 1 to {}.",
                                text, longestSide);
}

std::string scaleProblem(const std::string &text) {
    const std::optional<double> scale = numberOf(text);
    const bool isScale = scale && *scale >= smallestScale && *scale <= largestScale;
    return isScale ? std::string()
                   : fmt::format("'{}' is no scale: it is a number from {} to {}.", text, smallestScale,
                                 largestScale);
}

std::string rendererPath() {
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe");
    return (program.parent_path().parent_path() / "libexec/velmar/velmar-render").string();
}

std::size_t slidesCount(const Configuration &configuration) {
    const bool isMenuBar = configuration._window()._onScreen() == WindowSection::OnScreen::menuBar;
    return isMenuBar ? 1 : configuration._slides().size();
}

} // namespace

RenderCommand::RenderCommand(CLI::App &commandLine)
    : Command(commandLine, "render", "Make a picture of each slide, without a display") {
    options().add_option("FILE", file_, "The configuration")->required();
    options()
        .add_option("--out", directory_, "The folder of the pictures, made if it is missing")
        ->type_name("DIR")
        ->required();
    options().add_flag("--dark", isDark_, "In the dark appearance");
    options()
        .add_option("--size", size_, "The size in points instead of that of the window")
        ->type_name("WxH")
        ->check(sizeProblem);
    options().add_option("--scale", scale_, "The pixels a point")->type_name("N")->check(scaleProblem);
    options()
        .add_option("--language", language_, "The language of the interface")
        ->type_name("CODE")
        ->check([](const std::string &text) {
            return text.empty() ? "'' is no language: it is a code, such as de." : std::string();
        });
    options().add_flag("--no-admission", noAdmission_, "Leave the owner and the permissions out");
    addVariableOption(options(), variables_);
}

ExitStatus RenderCommand::run(const Surroundings &surroundings) const {
    const ConfigurationCheck check({.admission = !noAdmission_}, surroundings.authority);
    const auto [diagnostics, configuration] = check.check(file_);
    if (!configuration) {
        writeText(surroundings.out, diagnostics);
        return ExitStatus::refused;
    }
    surroundings.out.flush(); // The renderer's complaints come in between.
    std::promise<Result<std::string>> names;
    CommandLineService::execute(rendererPath(), argumentsOfRenderer(),
                                [&](Result<std::string> result) { names.set_value(std::move(result)); });
    const Result<std::string> result = names.get_future().get();
    if (!result) {
        surroundings.err << fmt::format("velmarctl: {}\n", result.error()->errorDescription());
        return ExitStatus::failed;
    }
    std::istringstream lines(*result);
    std::size_t count = 0;
    for (std::string name; std::getline(lines, name); ++count) {
        surroundings.out << (std::filesystem::path(directory_) / name).string() << '\n';
    }
    // Why there are fewer the renderer has said.
    return count == slidesCount(*configuration) ? ExitStatus::succeeded : ExitStatus::failed;
}

std::vector<std::string> RenderCommand::argumentsOfRenderer() const {
    // What begins with a dash is told from an option by its place.
    std::vector<std::string> arguments{file_, directory_};
    const auto add = [&](const char *name, const std::string &value) {
        arguments.insert(arguments.end(), {name, value});
    };
    if (isDark_) {
        arguments.emplace_back("--dark");
    }
    if (!size_.empty()) {
        add("--size", size_);
    }
    if (!scale_.empty()) {
        add("--scale", scale_);
    }
    if (!language_.empty()) {
        add("--language", language_);
    }
    for (const std::string &variable : variables_) {
        add("--var", variable);
    }
    return arguments;
}

} // namespace velmar
