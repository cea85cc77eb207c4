#pragma once

#include <boost/uuid/uuid.hpp>
#include <boost/uuid/uuid_hash.hpp>

#include <functional>

namespace velmar {

/// Random identity, different from every other object's (version 4).
struct UUID : boost::uuids::uuid {
    UUID(); ///< A new identity. Throws std::exception if the system gives no random bytes.
};

} // namespace velmar

template <>
struct std::hash<velmar::UUID> : std::hash<boost::uuids::uuid> {};
