#include <Admission/ConfigurationRefusal.h>

#include <Base/ProcessEnd.h>
#include <logger/Logger.h>

#include <fmt/format.h>

#include <cstdlib>

namespace velmar {

void ConfigurationRefusal::exitBecauseOf(const std::exception &error) const {
    Logger::error(
        [&] { return fmt::format("A problem occurred while retrieving configuration: {}", error.what()); });
    alert("The configuration file is incorrect", "Quit");
    static_cast<void>(settleBeforeExit());
    exit(0);
    std::abort();
}

} // namespace velmar
