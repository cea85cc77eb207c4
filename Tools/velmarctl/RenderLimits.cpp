#include <RenderLimits.h>

#include <Foundation/NumberText.h>

#include <fmt/format.h>

#include <optional>
#include <regex>

namespace velmar::RenderLimits {

namespace {

constexpr int longestSide = 8192; // In points.
constexpr double smallestScale = 0.5;
constexpr double largestScale = 4;

} // namespace

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

} // namespace velmar::RenderLimits
