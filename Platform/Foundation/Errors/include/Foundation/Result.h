#pragma once

#include <Foundation/LocalizedError.h>

#include <memory>
#include <type_traits>
#include <utility>

#include <tl/expected.hpp>

namespace velmar {

/// The reason why asynchronous work failed. Never null. `std::dynamic_pointer_cast` to an error family gives
/// access to the case.
using Error = std::shared_ptr<const LocalizedError>;

/// The outcome of asynchronous work: a value or an Error.
template <class T>
using Result = tl::expected<T, Error>;

/// Returns an error of a family as a failed Result of any type.
template <class Family>
requires std::is_base_of_v<LocalizedError, Family>
[[nodiscard]] tl::unexpected<Error> failure(Family error) {
    return tl::unexpected<Error>(std::make_shared<const Family>(std::move(error)));
}

} // namespace velmar
