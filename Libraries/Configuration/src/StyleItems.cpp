#include <Configuration/ItemGroups.h>

namespace velmar {

template struct ItemCoding<BorderItem>;
template struct ItemCoding<ColorItem>;
template struct ItemCoding<FontItem>;
template struct ItemCoding<MarginsItem>;
template struct ItemCoding<SizeItem>;
template struct ItemCoding<WindowPositionItem>;

} // namespace velmar
