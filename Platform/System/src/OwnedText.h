#pragma once

#include <cstdlib>
#include <memory>

namespace velmar {

/// Text that a C function has allocated.
struct FreeText {
    void operator()(char *text) const noexcept { std::free(text); }
};
using OwnedText = std::unique_ptr<char, FreeText>;

} // namespace velmar
