#include <Base/TerminationEventSender.h>

namespace velmar {

std::string_view TerminationEventSender::verb(Event event) noexcept {
    switch (event) {
    case Event::sleep:
        return "sleep";
    case Event::shutdown:
        return "shutdown";
    case Event::logout:
        return "logout";
    case Event::restart:
        return "restart";
    }
    return {};
}

} // namespace velmar
