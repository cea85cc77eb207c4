#include <logger/LogFormat.h>

#include <algorithm>
#include <iterator>
#include <utility>

#include <fmt/format.h>

namespace velmar {

namespace {

std::string_view stemOf(std::string_view path) {
    path = path.substr(path.rfind('/') + 1);
    const auto dot = path.rfind('.');
    return dot == 0 ? path : path.substr(0, dot);
}

bool isControl(unsigned char byte) {
    return (byte < 0x20 && byte != '\n' && byte != '\t') || byte == 0x7F;
}

// Appends untrusted text. Terminals also obey the controls U+0080 to U+009F, which are two bytes in UTF-8.
void appendPrintable(std::string &line, std::string_view text) {
    constexpr unsigned char leadOfUpperControls = 0xC2;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto byte = static_cast<unsigned char>(text[at]);
        const auto next = static_cast<unsigned char>(at + 1 < text.size() ? text[at + 1] : '\0');
        if (isControl(byte)) {
            fmt::format_to(std::back_inserter(line), "\\x{:02X}", byte);
        } else if (byte == leadOfUpperControls && next >= 0x80 && next < 0xA0) {
            fmt::format_to(std::back_inserter(line), "\\x{:02X}", next);
            ++at;
        } else {
            line += text[at];
        }
    }
}

} // namespace

LogFormat::LogFormat(std::string_view format) {
    std::string literal;
    const auto add = [&](Piece piece) {
        if (!literal.empty()) {
            pieces_.emplace_back(std::exchange(literal, {}));
        }
        pieces_.push_back(std::move(piece));
    };
    while (!format.empty()) {
        const char letter = format.size() > 1 && format[0] == '$' ? format[1] : '\0';
        if (letter == 'D') {
            if (const auto end = format.find("$d", 2); end != std::string_view::npos) {
                add(DatePattern(format.substr(2, end - 2)));
                format.remove_prefix(end + 2);
                continue;
            }
        } else if (const auto token = tokenOf(letter)) {
            add(*token);
            format.remove_prefix(2);
            continue;
        }
        literal += format.front();
        format.remove_prefix(1);
    }
    if (!literal.empty()) {
        pieces_.emplace_back(std::move(literal));
    }
    if (!pieces_.empty() && std::holds_alternative<std::string>(pieces_.front())) {
        head_ = std::get<std::string>(pieces_.front());
        head_.resize(head_.find_last_not_of(" \t\n") + 1);
    }
}

std::optional<LogFormat::Token> LogFormat::tokenOf(char letter) {
    switch (letter) {
    case 'L':
        return Token::level;
    case 'M':
        return Token::message;
    case 'X':
        return Token::context;
    case 'N':
        return Token::file;
    case 'F':
        return Token::function;
    case 'l':
        return Token::line;
    case 'T':
        return Token::thread;
    case 'C':
        return Token::colorOn;
    case 'c':
        return Token::colorOff;
    default:
        return std::nullopt;
    }
}

void LogFormat::append(std::string &line, const LogRecord &record, const DestinationSettings &settings,
                       bool colored) const {
    const std::size_t start = line.size();
    for (const Piece &piece : pieces_) {
        if (const auto *literal = std::get_if<std::string>(&piece)) {
            line += *literal;
        } else if (const auto *date = std::get_if<DatePattern>(&piece)) {
            date->append(line, record.time);
        } else {
            appendToken(line, std::get<Token>(piece), record, settings, colored);
        }
    }
    indentContinuations(line, start);
}

// Applied to the finished line, since message and context together may form such a start.
void LogFormat::indentContinuations(std::string &line, std::size_t start) const {
    if (head_.empty()) {
        return;
    }
    for (auto feed = line.find('\n', start); feed != line.npos; feed = line.find('\n', feed + 1)) {
        if (std::string_view(line).substr(feed + 1).starts_with(head_)) {
            line.insert(feed + 1, 1, ' ');
        }
    }
}

bool LogFormat::printsThread() const {
    return std::any_of(pieces_.begin(), pieces_.end(), [](const Piece &piece) {
        const auto *token = std::get_if<Token>(&piece);
        return token != nullptr && *token == Token::thread;
    });
}

void LogFormat::appendToken(std::string &line, Token token, const LogRecord &record,
                            const DestinationSettings &settings, bool colored) {
    switch (token) {
    case Token::level:
        line += settings.levelString[record.level];
        break;
    case Token::message:
        appendPrintable(line, record.message);
        break;
    case Token::context:
        appendPrintable(line, record.context);
        break;
    case Token::file:
        line += stemOf(record.where.file);
        break;
    case Token::function:
        line += record.where.function;
        break;
    case Token::line:
        line += std::to_string(record.where.line);
        break;
    case Token::thread:
        appendPrintable(line, record.thread);
        break;
    case Token::colorOn:
        if (colored) {
            line += settings.escape;
            line += settings.levelColor[record.level];
        }
        break;
    case Token::colorOff:
        if (colored) {
            line += settings.reset;
        }
        break;
    }
}

} // namespace velmar
