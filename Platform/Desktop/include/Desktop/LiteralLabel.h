#pragma once

#include <QString>

namespace velmar {

/// A text for a button or a menu, in whose labels '&' marks the key that presses it: shown character for
/// character.
[[nodiscard]] inline QString literalLabel(QString text) {
    return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace velmar
