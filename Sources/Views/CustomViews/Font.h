#pragma once

#include <Configuration/FontItem.h>

#include <QFont>
#include <QGuiApplication>

namespace velmar {

/// Returns the font of an item. Omitted properties are those of `standard`, which must use the system font. A
/// weight applies to the system font only. A family that isn't installed falls back to the system font.
[[nodiscard]] QFont fontOf(const FontItem &item, const QFont &standard);

/// Returns the alignment of an item. Left and right are absolute; natural or no alignment is the leading edge
/// of `direction`.
[[nodiscard]] Qt::Alignment alignmentOf(const std::optional<FontItem::TextAlignment> &alignment,
                                        Qt::LayoutDirection direction = QGuiApplication::layoutDirection());

} // namespace velmar
