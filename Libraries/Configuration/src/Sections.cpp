#include <Configuration/APIRequestItem.h>
#include <Configuration/APIRequestsSection.h>
#include <Configuration/AdminSection.h>
#include <Configuration/AppTerminationSection.h>
#include <Configuration/ColorItem.h>
#include <Configuration/ComponentItem.h>
#include <Configuration/ContainerItem.h>
#include <Configuration/ExpressionsBookCoding.h>
#include <Configuration/GeneralSection.h>
#include <Configuration/InputSection.h>
#include <Configuration/ItemCoding.h>
#include <Configuration/MonitorItem.h>
#include <Configuration/MonitoringSection.h>
#include <Configuration/NavigationSection.h>
#include <Configuration/SideContainerSection.h>
#include <Configuration/SizeItem.h>
#include <Configuration/WindowPositionItem.h>
#include <Configuration/WindowSection.h>

namespace velmar {

template struct ItemCoding<APIRequestsSection>;
template struct ItemCoding<AdminSection>;
template struct ItemCoding<AppTerminationSection>;
template struct ItemCoding<GeneralSection>;
template struct ItemCoding<InputSection>;
template struct ItemCoding<MonitoringSection>;
template struct ItemCoding<NavigationSection>;
template struct ItemCoding<SideContainerSection>;
template struct ItemCoding<WindowSection>;

} // namespace velmar
