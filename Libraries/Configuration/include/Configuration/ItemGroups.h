#pragma once

// The items whose coding is compiled in a source of its own: each group of items costs time to compile.

#include <Configuration/APIRequestItem.h>
#include <Configuration/ActionSetItem.h>
#include <Configuration/ComponentItem.h>
#include <Configuration/ItemCoding.h>
#include <Configuration/MonitorItem.h>
#include <Configuration/SizeItem.h>
#include <Configuration/SlideItem.h>
#include <Configuration/WindowPositionItem.h>

namespace velmar {

extern template struct ItemCoding<APIRequestItem>;
extern template struct TaggedItemCoding<ActionItem>;
extern template struct ItemCoding<ActionSetItem>;
extern template struct ItemCoding<BorderItem>;
extern template struct ItemCoding<ColorItem>;
extern template struct TaggedItemCoding<ComponentItem>;
extern template struct ItemCoding<FontItem>;
extern template struct ItemCoding<MarginsItem>;
extern template struct TaggedItemCoding<MonitorItem>;
extern template struct ItemCoding<SizeItem>;
extern template struct ItemCoding<SlideItem>;
extern template struct ItemCoding<TriggeredActionSetItem>;
extern template struct ItemCoding<WindowPositionItem>;

} // namespace velmar
