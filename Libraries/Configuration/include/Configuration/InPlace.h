#pragma once

#include <type_traits>

namespace velmar {

/// Converts to the result of `make`, so that an optional or an element of a vector constructs it in place
/// without a move. Items are large.
template <class Make>
struct InPlace {
    Make make;
    operator std::invoke_result_t<const Make &>() const { // NOLINT(google-explicit-constructor)
        return make();
    }
};
template <class Make>
InPlace(Make) -> InPlace<Make>;

} // namespace velmar
