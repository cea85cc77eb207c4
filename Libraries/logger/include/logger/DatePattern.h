#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// A Unicode date pattern (UTS #35) such as "yyyy-MM-dd HH:mm:ss.SSS", parsed once and printed in the local
/// time zone. The numeric fields y M d H h m s S and quoted text are printed here; a pattern with any other
/// field is left to ICU, in English, whose data are loaded with the first date that is printed so.
class DatePattern {
public:
    explicit DatePattern(std::string_view pattern);

    /// Appends the time. Not to be called for one pattern by two threads at once.
    void append(std::string &text, std::chrono::system_clock::time_point time) const;

private:
    // A run of one pattern letter, or a literal text where the letter is 0.
    struct Field {
        char letter;
        int count;
        std::string literal;
    };
    class Icu;

    bool parse(std::string_view pattern);

    std::vector<Field> fields_;
    // Set where the pattern is beyond the fields above; shared, so that patterns can be copied.
    std::shared_ptr<Icu> icu_;
};

} // namespace velmar
