#pragma once

#include <Desktop/StatusItem.h>

#include <optional>
#include <string>
#include <vector>

namespace velmar::MenuBarIcon {

/// Loads the image of the status item from a file, or the built-in image without a path. Logs problems of the
/// image. Returns nullopt if the file is not an image.
[[nodiscard]] std::optional<StatusItemImage> load(const std::optional<std::string> &path);

/// Returns the warnings, one sentence each, about an icon of a size in pixels.
[[nodiscard]] std::vector<std::string> warningsFor(int width, int height);

} // namespace velmar::MenuBarIcon
