#include <RenderCommand.h>

#include <ConfigurationCheck.h>
#include <RenderLimits.h>
#include <VariableOption.h>

#include <Configuration/Configuration.h>
#include <command-runner/CommandLineService.h>

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <future>
#include <sstream>
#include <system_error>

namespace velmar {

namespace {

std::string folderProblem(const std::string &path) {
    std::error_code ignored;
    const auto kind = std::filesystem::status(path, ignored).type();
    using enum std::filesystem::file_type;
    // If the status is unknown, the renderer reports why it cannot write there.
    const bool maybeFolder = kind == directory || kind == not_found || kind == none;
    return maybeFolder ? std::string() : fmt::format("'{}' already exists and is not a folder.", path);
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
        ->check(folderProblem)
        ->required();
    options().add_flag("--dark", isDark_, "In the dark appearance");
    options()
        .add_option("--size", size_, "The size in points instead of that of the window")
        ->type_name("WxH")
        ->check(RenderLimits::sizeProblem);
    options()
        .add_option("--scale", scale_, "The pixels a point")
        ->type_name("N")
        ->check(RenderLimits::scaleProblem);
    options()
        .add_option("--language", language_, "The language of the interface")
        ->type_name("CODE")
        ->check([](const std::string &text) {
            return text.empty() ? "'' is no language: it is a code, such as de." : std::string();
        });
    options().add_flag("--no-admission", noAdmission_, "Leave the owner and the permissions out");
    addVariableOption(options(), variables_);
}

ExitStatus RenderCommand::run(const CommandEnvironment &environment) const {
    const ConfigurationCheck check({.admission = !noAdmission_}, environment.authority);
    const auto [diagnostics, configuration] = check.check(file_);
    if (!configuration) {
        writeText(environment.out, diagnostics);
        return ExitStatus::refused;
    }
    environment.out.flush(); // The renderer's errors are printed after this output.
    std::promise<Result<std::string>> names;
    CommandLineService::execute(rendererPath(), argumentsOfRenderer(),
                                [&](Result<std::string> result) { names.set_value(std::move(result)); });
    const Result<std::string> result = names.get_future().get();
    if (!result) {
        environment.err << fmt::format("velmarctl: {}\n", result.error()->errorDescription());
        return ExitStatus::failed;
    }
    std::istringstream lines(*result);
    std::size_t count = 0;
    for (std::string name; std::getline(lines, name); ++count) {
        environment.out << (std::filesystem::path(directory_) / name).string() << '\n';
    }
    // The renderer has reported why pictures are missing.
    return count == slidesCount(*configuration) ? ExitStatus::succeeded : ExitStatus::failed;
}

std::vector<std::string> RenderCommand::argumentsOfRenderer() const {
    // Positional arguments, so that a leading dash is not taken for an option.
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
