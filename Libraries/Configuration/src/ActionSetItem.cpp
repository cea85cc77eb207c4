#include <Configuration/ActionItem.h>
#include <Configuration/ActionSetItem.h>
#include <Configuration/ActionTriggerCoding.h>
#include <Configuration/ConditionCoding.h>
#include <Configuration/ItemCoding.h>

namespace velmar {

template struct ItemCoding<ActionSetItem>;
template struct ItemCoding<TriggeredActionSetItem>;

} // namespace velmar
