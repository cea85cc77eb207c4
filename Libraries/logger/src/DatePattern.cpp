#include <logger/DatePattern.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <iterator>
#include <utility>

#include <fmt/core.h>
#include <fmt/format.h>

#include <unicode/simpletz.h>
#include <unicode/smpdtfmt.h>

namespace velmar {

namespace {

using std::chrono::milliseconds;
using std::chrono::nanoseconds;

constexpr std::string_view numericFields = "yMdHhmsS";

bool isPatternLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

int valueOf(char letter, const std::tm &time) {
    switch (letter) {
    case 'M':
        return time.tm_mon + 1;
    case 'd':
        return time.tm_mday;
    case 'H':
        return time.tm_hour;
    case 'h':
        return time.tm_hour % 12 == 0 ? 12 : time.tm_hour % 12;
    case 'm':
        return time.tm_min;
    case 's':
        return time.tm_sec;
    default:
        return time.tm_year + 1900;
    }
}

// Appends digits of the second's fraction, truncated.
void appendFraction(std::string &text, nanoseconds fraction, int digits) {
    const std::string all = fmt::format("{:09}", fraction.count());
    const auto count = static_cast<std::size_t>(digits);
    text += all.substr(0, count);
    text.append(count > all.size() ? count - all.size() : 0, '0');
}

} // namespace

// Creates the formatter with the first date, since loading ICU's data takes milliseconds.
class DatePattern::Icu {
public:
    explicit Icu(std::string_view pattern) : pattern_(pattern) {}

    // `offset` is the local time's offset from UTC in seconds. The system provides it, since ICU doesn't
    // support every syntax of TZ.
    void append(std::string &text, std::chrono::system_clock::time_point time, long offset) {
        if (!format_) {
            UErrorCode status = U_ZERO_ERROR;
            format_ = std::make_unique<icu::SimpleDateFormat>(icu::UnicodeString::fromUTF8(pattern_),
                                                              icu::Locale("en", "US", "POSIX"), status);
            usable_ = U_SUCCESS(status);
        }
        if (!usable_) {
            text += pattern_;
            return;
        }
        format_->setTimeZone(icu::SimpleTimeZone(static_cast<std::int32_t>(offset * 1000), "local"));
        icu::UnicodeString printed;
        const auto sinceEpoch = std::chrono::floor<milliseconds>(time.time_since_epoch());
        format_->format(static_cast<UDate>(sinceEpoch.count()), printed).toUTF8String(text);
    }

private:
    std::string pattern_;
    std::unique_ptr<icu::SimpleDateFormat> format_;
    bool usable_ = false;
};

DatePattern::DatePattern(std::string_view pattern) {
    if (!parse(pattern)) {
        fields_.clear();
        icu_ = std::make_shared<Icu>(pattern);
    }
}

// Returns false if the pattern needs ICU.
bool DatePattern::parse(std::string_view pattern) {
    std::string literal;
    bool quoted = false;
    for (std::size_t at = 0; at < pattern.size();) {
        const char c = pattern[at];
        if (c == '\'') {
            // A doubled quote is a literal one, within quoted text and outside.
            const bool doubled = at + 1 < pattern.size() && pattern[at + 1] == '\'';
            literal += doubled ? "'" : "";
            quoted = doubled ? quoted : !quoted;
            at += doubled ? 2 : 1;
        } else if (quoted || !isPatternLetter(c)) {
            literal += c;
            ++at;
        } else {
            const auto end = std::min(pattern.find_first_not_of(c, at), pattern.size());
            const int count = static_cast<int>(end - at);
            if (numericFields.find(c) == std::string_view::npos || (c == 'M' && count > 2) || count > 9) {
                return false;
            }
            fields_.push_back({'\0', 0, std::exchange(literal, {})});
            fields_.push_back({c, count, {}});
            at = end;
        }
    }
    fields_.push_back({'\0', 0, std::move(literal)});
    return true;
}

void DatePattern::append(std::string &text, std::chrono::system_clock::time_point time) const {
    const auto second = std::chrono::floor<std::chrono::seconds>(time);
    const std::time_t seconds = std::chrono::system_clock::to_time_t(second);
    std::tm local{};
    localtime_r(&seconds, &local);
    if (icu_) {
        icu_->append(text, time, local.tm_gmtoff);
        return;
    }
    for (const Field &field : fields_) {
        if (field.letter == '\0') {
            text += field.literal;
        } else if (field.letter == 'S') {
            appendFraction(text, time - second, field.count);
        } else {
            int value = valueOf(field.letter, local);
            if (field.letter == 'y' && field.count == 2) {
                value %= 100;
            }
            fmt::format_to(std::back_inserter(text), "{:0{}}", value, field.count);
        }
    }
}

} // namespace velmar
