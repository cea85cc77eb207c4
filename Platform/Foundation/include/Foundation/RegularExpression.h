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

/// A part of a UTF-8 text, in bytes. A range that a match gives always begins and ends between characters.
struct TextRange {
    std::size_t location = 0;
    std::size_t length = 0;

    [[nodiscard]] std::size_t end() const noexcept { return location + length; }
    /// The part itself; `text` is the one that the range was found in.
    [[nodiscard]] std::string_view of(std::string_view text) const { return text.substr(location, length); }

    bool operator==(const TextRange &) const = default;
};

struct RegularExpressionOptions {
    bool caseInsensitive = false;
    bool allowsCommentsAndWhitespace = false; ///< Blanks in the pattern are skipped, # begins a comment.
    bool dotMatchesLineSeparators = false;
    bool anchorsMatchLines = false; ///< ^ and $ match at the lines' ends, not only at the text's.

    bool operator==(const RegularExpressionOptions &) const = default;
};

/// Why a pattern or a match with it failed. A match that fails is never told as "no match".
struct RegularExpressionFailure {
    struct InvalidPattern {
        std::string pattern;
        std::string reason; ///< The engine's name of the fault, with line and column where it knows them.
        [[nodiscard]] std::string errorDescription() const;
    };
    /// Matching took more steps or time than allowed: the pattern backtracks too much on this text.
    struct StepLimitReached {
        std::string pattern;
        [[nodiscard]] std::string errorDescription() const;
    };
    /// Matching went deeper than the engine's stack: too many open alternatives on this text.
    struct StackOverflow {
        std::string pattern;
        [[nodiscard]] std::string errorDescription() const;
    };
    /// Anything else of the engine: no memory, a text above 2^31 - 1 UTF-16 units.
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

/// A compiled regular expression in ICU's syntax. An immutable value: copies share the compiled form, and any
/// number of threads may match with it at once. Equality and hash are those of pattern and options.
///
/// Texts are UTF-8; each ill-formed sequence of bytes matches as one U+FFFD. Matching throws
/// RegularExpressionError.
class RegularExpression {
public:
    /// Steps are the engine's unit of work, ten thousand backtracking points each. The default is about half
    /// a second of one processor; what matches at all takes a small part of it. Besides, a search that has
    /// taken two seconds of its thread's processor time ends as if it had reached the limit.
    static constexpr std::int32_t defaultStepLimit = 2000;

    /// Throws RegularExpressionError (InvalidPattern).
    explicit RegularExpression(std::string_view pattern, RegularExpressionOptions options = {},
                               std::int32_t stepLimit = defaultStepLimit);

    class Match {
    public:
        [[nodiscard]] TextRange range() const noexcept { return *groups_.front(); }
        /// Capture groups are numbered from 1; 0 is the whole match. Absent where the group took no part in
        /// the match or the pattern has no such group.
        [[nodiscard]] std::optional<TextRange> group(std::size_t number) const noexcept {
            return number < groups_.size() ? groups_[number] : std::nullopt;
        }

    private:
        friend class RegularExpression;
        std::vector<std::optional<TextRange>> groups_;
    };

    [[nodiscard]] std::optional<Match> firstMatch(std::string_view text) const;
    /// All matches, one after the other without overlap, in the text's order.
    [[nodiscard]] std::vector<Match> matches(std::string_view text) const;
    /// True if the first match is the whole text. With "a|ab" that is not so for "ab": its first match is
    /// "a".
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
