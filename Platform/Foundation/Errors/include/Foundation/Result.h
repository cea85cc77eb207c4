#pragma once

#include <Foundation/LocalizedError.h>

#include <memory>
#include <type_traits>
#include <utility>

#include <tl/expected.hpp>

namespace velmar {

/// Why asynchronous work failed, never null. `std::dynamic_pointer_cast` to a family of errors gives its
/// case.
using Error = std::shared_ptr<const LocalizedError>;

/// What asynchronous work completes with.
template <class T>
using Result = tl::expected<T, Error>;

/// An error of a family, as a failed Result of any type.
template <class Family>
requires std::is_base_of_v<LocalizedError, Family>
[[nodiscard]] tl::unexpected<Error> failure(Family error) {
    return tl::unexpected<Error>(std::make_shared<const Family>(std::move(error)));
}

} // namespace velmar
