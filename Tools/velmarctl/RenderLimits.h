#pragma once

#include <string>

/// What pictures may be made, for the command and for the program that makes them. Each gives a sentence
/// about what is wrong with a text, or nothing.
namespace velmar::RenderLimits {

/// A size is WxH in points.
[[nodiscard]] std::string sizeProblem(const std::string &text);

/// A scale is the number of pixels a point.
[[nodiscard]] std::string scaleProblem(const std::string &text);

} // namespace velmar::RenderLimits
