#pragma once

#include <cerrno>
#include <optional>
#include <vector>

namespace velmar {

/// Calls a reentrant lookup function of the system with a buffer that grows until the record fits, and
/// converts the record with `make`. Returns std::nullopt if there is no record or the lookup fails.
template <class Account, class Record, class Key, class Lookup, class Make>
std::optional<Account> accountFrom(Key key, Lookup lookup, const Make &make) {
    std::vector<char> buffer(1024);
    Record record{};
    Record *found = nullptr;
    for (;;) {
        const int failure = lookup(key, &record, buffer.data(), buffer.size(), &found);
        if (failure == ERANGE) {
            buffer.resize(buffer.size() * 2);
        } else if (failure != EINTR) {
            return found != nullptr ? std::optional<Account>(make(*found)) : std::nullopt;
        }
    }
}

} // namespace velmar
