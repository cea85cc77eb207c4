#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// A Unicode date pattern (UTS #35) such as "yyyy-MM-dd HH:mm:ss.SSS", parsed once and printed in local time.
/// Numeric fields y M d H h m s S and quoted text need no ICU. Other patterns use ICU in English, whose data
/// are loaded when the first such date is printed.
class DatePattern {
public:
    explicit DatePattern(std::string_view pattern);

    /// Appends the formatted time. Not thread-safe.
    void append(std::string &text, std::chrono::system_clock::time_point time) const;

private:
    // A run of one pattern letter, or literal text if `letter` is 0.
    struct Field {
        char letter;
        int count;
        std::string literal;
    };
    class Icu;

    bool parse(std::string_view pattern);

    std::vector<Field> fields_;
    // Set if the pattern needs ICU. Shared, so that patterns can be copied.
    std::shared_ptr<Icu> icu_;
};

} // namespace velmar
