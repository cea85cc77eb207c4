#include <logger/VelmarLogDestination.h>

#include <string>
#include <utility>

namespace velmar {

VelmarLogDestination::VelmarLogDestination(std::unique_ptr<BaseDestination> finalDestination,
                                           std::string_view displayName)
    : finalDestination_(std::move(finalDestination)) {
    setFormat("[" + std::string(displayName) + "] $DHH:mm:ss$d $L > $M $X", settings().levelString);
    finalDestination_->setFormat(settings().format, settings().levelString);
}

} // namespace velmar
