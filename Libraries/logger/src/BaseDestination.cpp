#include <logger/BaseDestination.h>

#include <algorithm>
#include <cstdio>
#include <utility>

#include <fmt/core.h>

namespace velmar {

namespace {

// Lines are passed on together up to this size, so that a burst of messages needs few system calls.
constexpr std::size_t bytesOfBatch = 64 * 1024;

} // namespace

BaseDestination::BaseDestination(DestinationSettings settings)
    : settings_(std::move(settings)), formatter_(settings_.format) {}

void BaseDestination::setFormat(std::string format, LevelTexts levelString) {
    settings_.format = std::move(format);
    settings_.levelString = std::move(levelString);
    formatter_ = LogFormat(settings_.format);
}

bool BaseDestination::shouldBeLogged(LogLevel level, const SourceLocation &where) const {
    return level >= settings_.minLevel &&
           std::all_of(settings_.filters.begin(), settings_.filters.end(),
                       [&](const LogFilter &filter) { return filter(level, where); });
}

void BaseDestination::formatLines(std::span<const LogRecord> records, bool colored,
                                  const std::function<void(std::string_view lines)> &output) const {
    std::string lines;
    for (const LogRecord &record : records) {
        formatter_.append(lines, record, settings_, colored);
        lines += '\n';
        if (lines.size() >= bytesOfBatch) {
            output(lines);
            lines.clear();
        }
    }
    if (!lines.empty()) {
        output(lines);
    }
}

void BaseDestination::reportLoss(std::string_view reason) const {
    if (settings_.debugPrint) {
        fmt::print(stderr, "velmar: lines of the log were lost: {}\n", reason);
    }
}

} // namespace velmar
