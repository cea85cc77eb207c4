#include <logger/LogFormat.h>

#include <algorithm>
#include <utility>

namespace velmar {

namespace {

std::string_view stemOf(std::string_view path) {
    path = path.substr(path.rfind('/') + 1);
    const auto dot = path.rfind('.');
    return dot == 0 ? path : path.substr(0, dot);
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
    for (const Piece &piece : pieces_) {
        if (const auto *literal = std::get_if<std::string>(&piece)) {
            line += *literal;
        } else if (const auto *date = std::get_if<DatePattern>(&piece)) {
            date->append(line, record.time);
        } else {
            appendToken(line, std::get<Token>(piece), record, settings, colored);
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
        line += record.message;
        break;
    case Token::context:
        line += record.context;
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
        line += record.thread;
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
