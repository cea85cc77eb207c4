#include <Configuration/BorderItem.h>
#include <Configuration/Components/AppMonitor.h>
#include <Configuration/Components/Image.h>
#include <Configuration/Components/PDF.h>
#include <Configuration/Components/Spacer.h>
#include <Configuration/Components/Text.h>
#include <Configuration/Components/Video.h>
#include <Configuration/Components/Web.h>
#include <Configuration/ConditionCoding.h>
#include <Configuration/FontItem.h>
#include <Configuration/ItemCoding.h>
#include <Configuration/MarginsItem.h>
#include <Configuration/URLCoding.h>

namespace velmar {

template struct ItemCoding<ComponentItems::AppMonitor>;
template struct ItemCoding<ComponentItems::Image>;
template struct ItemCoding<ComponentItems::PDF>;
template struct ItemCoding<ComponentItems::Spacer>;
template struct ItemCoding<ComponentItems::Text>;
template struct ItemCoding<ComponentItems::Video>;
template struct ItemCoding<ComponentItems::Web>;

template VariableNames usedVariables(const ComponentItems::AppMonitor &);
template VariableNames usedVariables(const ComponentItems::Image &);
template VariableNames usedVariables(const ComponentItems::PDF &);
template VariableNames usedVariables(const ComponentItems::Spacer &);
template VariableNames usedVariables(const ComponentItems::Text &);
template VariableNames usedVariables(const ComponentItems::Video &);
template VariableNames usedVariables(const ComponentItems::Web &);

} // namespace velmar
