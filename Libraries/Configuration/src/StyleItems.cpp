#include <Configuration/BorderItem.h>
#include <Configuration/ColorCoding.h>
#include <Configuration/FontItem.h>
#include <Configuration/ItemCoding.h>
#include <Configuration/MarginsItem.h>
#include <Configuration/SizeItem.h>
#include <Configuration/WindowPositionItem.h>

namespace velmar {

template struct ItemCoding<BorderItem>;
template struct ItemCoding<ColorItem>;
template struct ItemCoding<FontItem>;
template struct ItemCoding<MarginsItem>;
template struct ItemCoding<SizeItem>;
template struct ItemCoding<WindowPositionItem>;

} // namespace velmar
