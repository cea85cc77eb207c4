#pragma once

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace velmar {

/// The parsed command line: the file to render, the folder for the pictures, and their form.
struct RenderOptions {
    /// A size in points.
    struct Size {
        int width = 0;
        int height = 0;
    };

    std::string file;
    std::string directory;
    bool isDark = false;
    std::optional<Size> size;
    double scale = 1; ///< Pixels per point.
    std::optional<std::string> language;
    std::vector<std::pair<std::string, std::string>> variables; ///< Names and values.

    /// Parses the arguments without the program's name. Throws std::invalid_argument with a sentence for the
    /// user.
    [[nodiscard]] static RenderOptions parse(std::span<const std::string> arguments);
};

} // namespace velmar
