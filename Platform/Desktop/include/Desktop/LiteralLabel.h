#pragma once

#include <QString>

namespace velmar {

/// Escapes a text for the label of a button or a menu, where '&' would mark a mnemonic.
[[nodiscard]] inline QString literalLabel(QString text) {
    return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace velmar
