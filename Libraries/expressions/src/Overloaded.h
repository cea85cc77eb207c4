#pragma once

namespace velmar::expressions {

/// A visitor for std::visit that combines several functions.
template <class... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};
template <class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

} // namespace velmar::expressions
