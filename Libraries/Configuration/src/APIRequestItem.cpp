#include <Configuration/APIRequestItem.h>

#include <Configuration/ItemGroups.h>

namespace velmar {

template struct ItemCoding<APIRequestItem>;

} // namespace velmar
