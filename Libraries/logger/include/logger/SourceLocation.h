#pragma once

namespace velmar {

/// The place in the sources of a call. Like the standard's class, which clang 14 cannot compile, but with the
/// plain name of the function. The texts live as long as the process.
struct SourceLocation {
    const char *file = "";
    const char *function = "";
    int line = 0;

    /// As a default argument: the place of the caller.
    static constexpr SourceLocation current(const char *file = __builtin_FILE(),
                                            const char *function = __builtin_FUNCTION(),
                                            int line = __builtin_LINE()) noexcept {
        return {file, function, line};
    }
};

} // namespace velmar
