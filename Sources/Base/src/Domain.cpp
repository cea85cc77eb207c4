#include <Base/Domain.h>

#include <logger/Logger.h>

#include <fmt/format.h>

namespace velmar::Domain {

std::optional<URL> applicationSupportDirectory(std::string_view text) {
    const auto url = URL::fromString(text);
    if (!url) {
        Logger::warning([&] { return fmt::format("Couldn't find the path at {}", text); });
        return std::nullopt;
    }
    return URL::file(url->path(), true);
}

} // namespace velmar::Domain
