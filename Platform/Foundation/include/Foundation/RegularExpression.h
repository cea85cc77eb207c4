#pragma once

#include <Foundation/LocalizedError.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// A range of bytes in a UTF-8 text. The ranges of a match begin and end between characters.
struct TextRange {
    std::size_t location = 0;
    std::size_t length = 0;

    [[nodiscard]] std::size_t end() const noexcept { return location + length; }
    /// Returns the part of `text`, which must be the text that was searched.
    [[nodiscard]] std::string_view of(std::string_view text) const { return text.substr(location, length); }

    bool operator==(const TextRange &) const = default;
};

struct RegularExpressionOptions {
    bool caseInsensitive = false;
    bool allowsCommentsAndWhitespace = false; ///< Skips blanks in the pattern; # starts a comment.
    bool dotMatchesLineSeparators = false;
    /// ^ and $ match at line ends, not only at the ends of the text.
    bool anchorsMatchLines = false;

    bool operator==(const RegularExpressionOptions &) const = default;
};

/// Cases of an invalid pattern or a failed match. A failed match is always an error, never "no match".
struct RegularExpressionFailure {
    struct InvalidPattern {
        std::string pattern;
        std::string reason; ///< The engine's name of the error, with line and column if known.
        [[nodiscard]] std::string errorDescription() const;
    };
    /// Matching exceeded its steps or its time: the pattern backtracks too much on this text.
    struct StepLimitReached {
        std::string pattern;
        [[nodiscard]] std::string errorDescription() const;
    };
    /// Matching exceeded the engine's stack: too many alternatives are open on this text.
    struct StackOverflow {
        std::string pattern;
        [[nodiscard]] std::string errorDescription() const;
    };
    /// Any other failure of the engine, such as out of memory or a text longer than 2^31 - 1 bytes.
    struct MatchFailed {
        std::string pattern;
        std::string reason;
        [[nodiscard]] std::string errorDescription() const;
    };
};

class RegularExpressionError final
    : public ErrorOfCases<RegularExpressionFailure::InvalidPattern,
                          RegularExpressionFailure::StepLimitReached, RegularExpressionFailure::StackOverflow,
                          RegularExpressionFailure::MatchFailed>,
      public RegularExpressionFailure {
public:
    using ErrorOfCases::ErrorOfCases;
};

/// A compiled regular expression in ICU's syntax. An immutable value: copies share the compiled form.
/// Thread-safe. Equality and hash depend on the pattern and the options.
///
/// Texts are UTF-8. Each ill-formed byte sequence matches as one U+FFFD. Matching throws
/// RegularExpressionError.
class RegularExpression {
public:
    /// Default limit of a search in steps, the engine's unit of 10,000 backtracking points. It takes about
    /// half a second of processor time; ordinary matches need a small part of it. A search also fails with
    /// StepLimitReached after two seconds of processor time of its thread.
    static constexpr std::int32_t defaultStepLimit = 2000;

    /// Compiles a pattern. Throws RegularExpressionError (InvalidPattern).
    explicit RegularExpression(std::string_view pattern, RegularExpressionOptions options = {},
                               std::int32_t stepLimit = defaultStepLimit);

    class Match {
    public:
        [[nodiscard]] TextRange range() const noexcept { return *groups_.front(); }
        /// Returns the range of a capture group, numbered from 1; 0 is the whole match. Returns std::nullopt
        /// if the group took no part in the match or doesn't exist.
        [[nodiscard]] std::optional<TextRange> group(std::size_t number) const noexcept {
            return number < groups_.size() ? groups_[number] : std::nullopt;
        }

    private:
        friend class RegularExpression;
        std::vector<std::optional<TextRange>> groups_;
    };

    [[nodiscard]] std::optional<Match> firstMatch(std::string_view text) const;
    /// Returns all non-overlapping matches in the order of the text.
    [[nodiscard]] std::vector<Match> matches(std::string_view text) const;
    /// Returns true if the first match spans the whole text. False for "a|ab" and the text "ab", where the
    /// first match is "a".
    [[nodiscard]] bool matchesWhole(std::string_view text) const;

    [[nodiscard]] const std::string &pattern() const noexcept;
    [[nodiscard]] const RegularExpressionOptions &options() const noexcept;

    bool operator==(const RegularExpression &other) const noexcept;

private:
    struct Compiled;
    std::shared_ptr<const Compiled> compiled_;
};

} // namespace velmar

template <>
struct std::hash<velmar::RegularExpression> {
    std::size_t operator()(const velmar::RegularExpression &expression) const noexcept {
        return std::hash<std::string>()(expression.pattern());
    }
};
