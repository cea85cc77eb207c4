#pragma once

#include <string>

/// Limits for pictures, shared by the command and the renderer. Each function returns a sentence about the
/// fault of a text, or an empty text.
namespace velmar::RenderLimits {

/// Checks a size, WxH in points.
[[nodiscard]] std::string sizeProblem(const std::string &text);

/// Checks a scale, in pixels per point.
[[nodiscard]] std::string scaleProblem(const std::string &text);

} // namespace velmar::RenderLimits
