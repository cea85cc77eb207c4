#pragma once

#include <QString>

namespace velmar {

/// Returns the text, cut to `longest` UTF-16 units plus an ellipsis if it is longer. Doesn't split surrogate
/// pairs. Thread-safe.
[[nodiscard]] inline QString shortened(QString text, qsizetype longest) {
    if (text.size() > longest) {
        text.truncate(text.at(longest - 1).isHighSurrogate() ? longest - 1 : longest);
        text.append(QChar(0x2026));
    }
    return text;
}

} // namespace velmar
