#pragma once

#include <QString>

namespace velmar {

/// The text, or its beginning and an ellipsis where it has more characters than that. No character is cut in
/// two. Any thread.
[[nodiscard]] inline QString shortened(QString text, qsizetype longest) {
    if (text.size() > longest) {
        text.truncate(text.at(longest - 1).isHighSurrogate() ? longest - 1 : longest);
        text.append(QChar(0x2026));
    }
    return text;
}

} // namespace velmar
