#include <Base/VelmarLogDestinations.h>

#include <Base/Domain.h>
#include <System/IdentityAuthority.h>
#include <logger/Logger.h>
#include <logger/VelmarLogConsoleDestination.h>
#include <logger/VelmarLogFileDestination.h>
#include <logger/VelmarLogFilePermanentDestination.h>

#include <optional>
#include <string>
#include <utility>

namespace velmar {

std::vector<std::shared_ptr<BaseDestination>> makeVelmarLogDestinations(const IdentityAuthority &authority) {
    const std::string userName = authority.consoleUserName();
    std::optional<FileOwner> owner;
    if (const auto ids = authority.ids(userName)) {
        owner = FileOwner{ids->userId, ids->groupId};
    }
    return {
        std::make_shared<VelmarLogConsoleDestination>(Domain::applicationName),
        std::make_shared<VelmarLogFileDestination>(Domain::applicationName, userName, owner),
        std::make_shared<VelmarLogFilePermanentDestination>(Domain::applicationName, userName, owner),
    };
}

void installVelmarLogDestinations(const IdentityAuthority &authority) {
    for (auto &destination : makeVelmarLogDestinations(authority)) {
        Logger::addDestination(std::move(destination));
    }
}

} // namespace velmar
