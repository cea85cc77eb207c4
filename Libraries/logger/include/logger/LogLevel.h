#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace velmar {

/// Levels in ascending order.
enum class LogLevel : std::uint8_t { verbose, debug, info, warning, error };

inline constexpr std::size_t logLevelCount = 5;

/// Returns the level's name, such as "warning".
[[nodiscard]] std::string_view nameOf(LogLevel level) noexcept;

/// One UTF-8 text per level.
class LevelTexts {
public:
    LevelTexts() = default;
    LevelTexts(std::string verbose, std::string debug, std::string info, std::string warning,
               std::string error);

    [[nodiscard]] const std::string &operator[](LogLevel level) const {
        return texts_[static_cast<std::size_t>(level)];
    }

private:
    std::array<std::string, logLevelCount> texts_;
};

} // namespace velmar
