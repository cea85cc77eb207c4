#pragma once

#include <Desktop/StatusItem.h>

#include <optional>
#include <string>
#include <vector>

namespace velmar::MenuBarIcon {

/// The picture of the status item: that of the file, or the application's own where no path is given. Logs
/// what is wrong with it; nothing if it is no picture.
[[nodiscard]] std::optional<StatusItemImage> load(const std::optional<std::string> &path);

/// What is unusual about an icon of that size in pixels, a sentence each.
[[nodiscard]] std::vector<std::string> warningsFor(int width, int height);

} // namespace velmar::MenuBarIcon
