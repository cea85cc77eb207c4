#pragma once

#include <Configuration/FontItem.h>

#include <QFont>
#include <QGuiApplication>

namespace velmar {

/// The font of an item. What the item leaves open is as in `standard`, which is in the system's font; a
/// weight applies to the system's font only. A family that isn't installed falls back to the system's.
[[nodiscard]] QFont fontOf(const FontItem &item, const QFont &standard);

/// The alignment of an item, in which left and right are meant as such; the natural one, and that of an item
/// without one, is where the direction begins.
[[nodiscard]] Qt::Alignment alignmentOf(const std::optional<FontItem::TextAlignment> &alignment,
                                        Qt::LayoutDirection direction = QGuiApplication::layoutDirection());

} // namespace velmar
