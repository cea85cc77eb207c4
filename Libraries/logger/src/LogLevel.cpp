#include <logger/LogLevel.h>

#include <utility>

namespace velmar {

std::string_view nameOf(LogLevel level) noexcept {
    static constexpr std::array<std::string_view, logLevelCount> names{"verbose", "debug", "info", "warning",
                                                                       "error"};
    return names[static_cast<std::size_t>(level)];
}

LevelTexts::LevelTexts(std::string verbose, std::string debug, std::string info, std::string warning,
                       std::string error)
    : texts_{std::move(verbose), std::move(debug), std::move(info), std::move(warning), std::move(error)} {}

} // namespace velmar
