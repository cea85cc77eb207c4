#include <Configuration/ActionItem.h>
#include <Configuration/ActionSetItem.h>
#include <Configuration/BorderItem.h>
#include <Configuration/ColorItem.h>
#include <Configuration/Components/Button.h>
#include <Configuration/ConditionCoding.h>
#include <Configuration/FontItem.h>
#include <Configuration/ItemCoding.h>
#include <Configuration/MarginsItem.h>
#include <Configuration/SizeItem.h>

namespace velmar {

template struct ItemCoding<ComponentItems::Button>;

template VariableNames usedVariables(const ComponentItems::Button &);

} // namespace velmar
