#pragma once

namespace velmar::expressions {

/// One function object of several, for std::visit.
template <class... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};
template <class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

} // namespace velmar::expressions
