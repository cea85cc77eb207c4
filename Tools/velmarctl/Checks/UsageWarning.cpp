#include <Checks/UsageWarning.h>

#include <utility>

namespace velmar {

UsageWarning warningAt(const ValuePlace &place, std::string message) {
    return {place.path.text(), place.value.offset(), std::move(message)};
}

UsageWarning warningAt(const ValuePlace &item, std::string_view key, std::string message) {
    const CodingPath path(item.path, key);
    return warningAt({*item.value.find(key), path}, std::move(message));
}

} // namespace velmar
