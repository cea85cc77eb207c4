#include <logger/LogLevel.h>

#include <utility>

namespace velmar {

LevelTexts::LevelTexts(std::string verbose, std::string debug, std::string info, std::string warning,
                       std::string error)
    : texts_{std::move(verbose), std::move(debug), std::move(info), std::move(warning), std::move(error)} {}

} // namespace velmar
