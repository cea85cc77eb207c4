#include "RenderOptions.h"

#include <Foundation/NumberText.h>
#include <RenderLimits.h>

#include <cstdlib>
#include <stdexcept>

namespace velmar {

namespace {

void require(const std::string &problem) {
    if (!problem.empty()) {
        throw std::invalid_argument(problem);
    }
}

RenderOptions::Size sizeOf(const std::string &text) {
    require(RenderLimits::sizeProblem(text));
    return {std::atoi(text.c_str()), std::atoi(text.c_str() + text.find('x') + 1)};
}

double scaleOf(const std::string &text) {
    require(RenderLimits::scaleProblem(text));
    return numberOf(text).value_or(1);
}

std::pair<std::string, std::string> assignmentOf(const std::string &text) {
    const std::size_t end = text.find('=');
    return {text.substr(0, end), end == std::string::npos ? std::string() : text.substr(end + 1)};
}

} // namespace

RenderOptions RenderOptions::parse(std::span<const std::string> arguments) {
    if (arguments.size() < 2) {
        throw std::invalid_argument("velmar-render is for velmarctl: it takes FILE, DIRECTORY and options.");
    }
    RenderOptions options;
    options.file = arguments[0];
    options.directory = arguments[1];
    for (auto rest = arguments.subspan(2); !rest.empty();) {
        const std::string &name = rest.front();
        rest = rest.subspan(1);
        if (name == "--dark") {
            options.isDark = true;
            continue;
        }
        if (rest.empty()) {
            throw std::invalid_argument("The option " + name + " has no value.");
        }
        const std::string &value = rest.front();
        rest = rest.subspan(1);
        if (name == "--size") {
            options.size = sizeOf(value);
        } else if (name == "--scale") {
            options.scale = scaleOf(value);
        } else if (name == "--language") {
            options.language = value;
        } else if (name == "--var") {
            options.variables.push_back(assignmentOf(value));
        } else {
            throw std::invalid_argument("There is no option " + name + ".");
        }
    }
    return options;
}

} // namespace velmar
