#include <Foundation/RegularExpression.h>

#include <Foundation/UnicodeText.h>

#include "Utf8Decoding.h"

#include <chrono>
#include <ctime>
#include <limits>
#include <mutex>
#include <new>
#include <utility>

#include <unicode/regex.h>
#include <unicode/unistr.h>
#include <unicode/utf16.h>

namespace velmar {

std::string RegularExpressionFailure::InvalidPattern::errorDescription() const {
    return "The regular expression pattern '" + pattern + "' is invalid: " + reason;
}

std::string RegularExpressionFailure::StepLimitReached::errorDescription() const {
    return "The regular expression pattern '" + pattern + "' takes too many steps on this text.";
}

std::string RegularExpressionFailure::StackOverflow::errorDescription() const {
    return "The regular expression pattern '" + pattern + "' takes too much memory on this text.";
}

std::string RegularExpressionFailure::MatchFailed::errorDescription() const {
    return "The regular expression pattern '" + pattern + "' couldn't be matched: " + reason;
}

namespace {

// Maximum of cached matchers. Further ones, returned after a burst of threads, are destroyed.
constexpr std::size_t idleMatchers = 4;

constexpr UChar32 replacement = 0xFFFD;

// Processor time of the calling thread, so that a busy machine doesn't make a match fail.
std::chrono::nanoseconds processorTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

// Steps alone don't bound the time: a step with a back reference may take as long as the text.
constexpr std::chrono::seconds timeLimit(2);

// Time of the first step. Most searches end before their first step.
struct SearchStart {
    mutable std::optional<std::chrono::nanoseconds> time;
};

UBool U_CALLCONV goesOn(const void *context, std::int32_t /*steps*/) {
    auto &start = static_cast<const SearchStart *>(context)->time;
    const std::chrono::nanoseconds now = processorTime();
    if (!start) {
        start = now;
    }
    return static_cast<UBool>(now - *start < timeLimit);
}

std::uint32_t flagsOf(const RegularExpressionOptions &options) {
    const auto flag = [](bool isOn, URegexpFlag value) {
        return isOn ? static_cast<std::uint32_t>(value) : 0U;
    };
    return flag(options.caseInsensitive, UREGEX_CASE_INSENSITIVE) |
           flag(options.allowsCommentsAndWhitespace, UREGEX_COMMENTS) |
           flag(options.dotMatchesLineSeparators, UREGEX_DOTALL) |
           flag(options.anchorsMatchLines, UREGEX_MULTILINE);
}

// A text in UTF-16, with a map from UTF-16 positions back to bytes. The engine is several times faster on
// contiguous UTF-16 than on UTF-8 through its text interface, even with the conversion.
class Haystack {
public:
    explicit Haystack(std::string_view text) : text_(text), isAscii_(UnicodeText::isAscii(text)) {
        // UTF-16 never has more units than UTF-8 has bytes.
        const auto capacity = static_cast<std::int32_t>(text.size());
        char16_t *units = utf16_.getBuffer(capacity);
        if (units == nullptr) {
            throw std::bad_alloc();
        }
        std::int32_t length = 0;
        if (isAscii_) {
            for (const char byte : text) {
                units[length++] = static_cast<char16_t>(byte);
            }
        } else {
            forEachCharacter(
                [&](UChar32 character, std::size_t) { U16_APPEND_UNSAFE(units, length, character); });
        }
        utf16_.releaseBuffer(length);
    }

    [[nodiscard]] const icu::UnicodeString &utf16() const { return utf16_; }

    [[nodiscard]] TextRange range(std::int32_t start, std::int32_t end) {
        if (isAscii_) {
            return {static_cast<std::size_t>(start), static_cast<std::size_t>(end - start)};
        }
        if (byteOffsets_.empty()) {
            findByteOffsets();
        }
        const std::size_t location = byteOffsets_[static_cast<std::size_t>(start)];
        return {location, byteOffsets_[static_cast<std::size_t>(end)] - location};
    }

private:
    template <class Visit>
    void forEachCharacter(const Visit &visit) const {
        for (std::size_t position = 0; position < text_.size();) {
            const auto [value, length] = decodeUtf8(text_, position);
            visit(value < 0 ? replacement : value, position);
            position += length;
        }
    }

    void findByteOffsets() {
        byteOffsets_.reserve(static_cast<std::size_t>(utf16_.length()) + 1);
        forEachCharacter([this](UChar32 character, std::size_t start) {
            byteOffsets_.insert(byteOffsets_.end(), U16_LENGTH(character), static_cast<std::uint32_t>(start));
        });
        byteOffsets_.push_back(static_cast<std::uint32_t>(text_.size()));
    }

    std::string_view text_;
    bool isAscii_;
    icu::UnicodeString utf16_;
    std::vector<std::uint32_t> byteOffsets_; // by UTF-16 position, filled on demand
};

} // namespace

struct RegularExpression::Compiled {
    std::string pattern;
    RegularExpressionOptions options;
    std::int32_t stepLimit = 0;
    std::unique_ptr<icu::RegexPattern> regex;

    // Cache of matchers: creating one costs more than most matches, and each is used by one thread at a time.
    mutable std::mutex mutex;
    mutable std::vector<std::unique_ptr<icu::RegexMatcher>> idle;

    void throwIfFailed(UErrorCode status) const {
        if (U_SUCCESS(status)) {
            return;
        }
        if (status == U_REGEX_TIME_OUT || status == U_REGEX_STOPPED_BY_CALLER) {
            throw RegularExpressionError(RegularExpressionError::StepLimitReached{pattern});
        }
        if (status == U_REGEX_STACK_OVERFLOW) {
            throw RegularExpressionError(RegularExpressionError::StackOverflow{pattern});
        }
        throw RegularExpressionError(RegularExpressionError::MatchFailed{pattern, u_errorName(status)});
    }

    [[nodiscard]] std::unique_ptr<icu::RegexMatcher> takeMatcher() const {
        {
            const std::lock_guard lock(mutex);
            if (!idle.empty()) {
                auto matcher = std::move(idle.back());
                idle.pop_back();
                return matcher;
            }
        }
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<icu::RegexMatcher> matcher(regex->matcher(status));
        if (U_SUCCESS(status)) {
            matcher->setTimeLimit(stepLimit, status);
        }
        throwIfFailed(status);
        return matcher;
    }

    void giveBack(std::unique_ptr<icu::RegexMatcher> matcher) const {
        // Never destroyed: queues may still match at exit.
        static const auto &nothing = *new icu::UnicodeString;
        matcher->reset(nothing);
        const std::lock_guard lock(mutex);
        if (idle.size() < idleMatchers) {
            idle.push_back(std::move(matcher));
        }
    }

    // Calls `found` with the matcher at each match, in order, until it returns false. A failed matcher is not
    // reused, because its stack has grown to the limit.
    template <class Found>
    void search(std::string_view text, const Found &found) const {
        if (text.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max())) {
            throw RegularExpressionError(
                RegularExpressionError::MatchFailed{pattern, "the text is too long"});
        }
        Haystack haystack(text);
        auto matcher = takeMatcher();
        matcher->reset(haystack.utf16());
        const SearchStart start;
        UErrorCode status = U_ZERO_ERROR;
        matcher->setMatchCallback(goesOn, &start, status);
        while (matcher->find(status) && U_SUCCESS(status)) {
            if (!found(*matcher, haystack)) {
                break;
            }
        }
        matcher->setMatchCallback(nullptr, nullptr, status);
        throwIfFailed(status);
        giveBack(std::move(matcher));
    }
};

namespace {

std::vector<std::optional<TextRange>> groupsOf(const icu::RegexMatcher &matcher, Haystack &haystack) {
    std::vector<std::optional<TextRange>> groups;
    const std::int32_t count = matcher.groupCount();
    groups.reserve(static_cast<std::size_t>(count) + 1);
    for (std::int32_t number = 0; number <= count; ++number) {
        UErrorCode status = U_ZERO_ERROR;
        const std::int32_t start = matcher.start(number, status);
        const std::int32_t end = matcher.end(number, status);
        groups.push_back(start < 0 ? std::nullopt : std::optional(haystack.range(start, end)));
    }
    return groups;
}

} // namespace

RegularExpression::RegularExpression(std::string_view pattern, RegularExpressionOptions options,
                                     std::int32_t stepLimit) {
    const auto invalid = [&](std::string reason) {
        return RegularExpressionError(
            RegularExpressionError::InvalidPattern{std::string(pattern), std::move(reason)});
    };
    if (!UnicodeText::isValidUtf8(pattern) ||
        pattern.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max())) {
        throw invalid("the pattern is not UTF-8");
    }

    auto compiled = std::make_shared<Compiled>();
    compiled->pattern = pattern;
    compiled->options = options;
    compiled->stepLimit = stepLimit;
    UErrorCode status = U_ZERO_ERROR;
    UParseError where{};
    const auto utf16 =
        icu::UnicodeString::fromUTF8({pattern.data(), static_cast<std::int32_t>(pattern.size())});
    compiled->regex.reset(icu::RegexPattern::compile(utf16, flagsOf(options), where, status));
    if (U_FAILURE(status)) {
        std::string reason = u_errorName(status);
        if (where.line > 0) {
            reason += " at line " + std::to_string(where.line) + ", column " + std::to_string(where.offset);
        }
        throw invalid(std::move(reason));
    }
    compiled_ = std::move(compiled);
}

std::optional<RegularExpression::Match> RegularExpression::firstMatch(std::string_view text) const {
    std::optional<Match> first;
    compiled_->search(text, [&](const icu::RegexMatcher &matcher, Haystack &haystack) {
        first.emplace().groups_ = groupsOf(matcher, haystack);
        return false;
    });
    return first;
}

std::vector<RegularExpression::Match> RegularExpression::matches(std::string_view text) const {
    std::vector<Match> all;
    compiled_->search(text, [&](const icu::RegexMatcher &matcher, Haystack &haystack) {
        all.emplace_back().groups_ = groupsOf(matcher, haystack);
        return true;
    });
    return all;
}

bool RegularExpression::matchesWhole(std::string_view text) const {
    bool isWhole = false;
    compiled_->search(text, [&](const icu::RegexMatcher &matcher, const Haystack &haystack) {
        UErrorCode status = U_ZERO_ERROR;
        isWhole = matcher.start(status) == 0 && matcher.end(status) == haystack.utf16().length();
        return false;
    });
    return isWhole;
}

const std::string &RegularExpression::pattern() const noexcept {
    return compiled_->pattern;
}

const RegularExpressionOptions &RegularExpression::options() const noexcept {
    return compiled_->options;
}

bool RegularExpression::operator==(const RegularExpression &other) const noexcept {
    return compiled_ == other.compiled_ || (pattern() == other.pattern() && options() == other.options());
}

} // namespace velmar
