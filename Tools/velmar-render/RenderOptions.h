#pragma once

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace velmar {

/// What the program is to render, and how.
struct RenderOptions {
    /// Points.
    struct Size {
        int width = 0;
        int height = 0;
    };

    std::string file;
    std::string directory;
    bool isDark = false;
    std::optional<Size> size;
    double scale = 1; ///< Pixels a point.
    std::optional<std::string> language;
    std::vector<std::pair<std::string, std::string>> variables; ///< Names and values.

    /// Of the arguments without the program's name. Throws std::invalid_argument with a sentence.
    [[nodiscard]] static RenderOptions parse(std::span<const std::string> arguments);
};

} // namespace velmar
