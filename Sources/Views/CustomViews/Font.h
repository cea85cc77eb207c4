#pragma once

#include <Configuration/FontItem.h>

#include <QFont>

namespace velmar {

/// The font of an item. What the item leaves open is as in `standard`, which is in the system's font; a
/// weight applies to the system's font only. A family that isn't installed falls back to the system's.
[[nodiscard]] QFont fontOf(const FontItem &item, const QFont &standard);

/// The alignment of a text's lines; the item's, or else that of the text's own direction.
[[nodiscard]] Qt::Alignment alignmentOf(const std::optional<FontItem::TextAlignment> &alignment);

} // namespace velmar
