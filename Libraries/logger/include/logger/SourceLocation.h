#pragma once

namespace velmar {

/// A place in the source code. Replaces std::source_location, which clang 14 cannot compile, and contains the
/// plain name of the function. The texts are static.
struct SourceLocation {
    const char *file = "";
    const char *function = "";
    int line = 0;

    /// Returns the place of the caller if used as a default argument.
    static constexpr SourceLocation current(const char *file = __builtin_FILE(),
                                            const char *function = __builtin_FUNCTION(),
                                            int line = __builtin_LINE()) noexcept {
        return {file, function, line};
    }
};

} // namespace velmar
