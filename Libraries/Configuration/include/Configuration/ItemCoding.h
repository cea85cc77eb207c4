#pragma once

// The coding of items, and the items whose coding is instantiated in one source. Included by these sources
// and by tests, never by the headers of items. A source that instantiates the coding of an item includes the
// complete types of the values of its keys.

#include <Configuration/ItemCodingTemplates.h>

namespace velmar {

struct APIRequestItem;
struct APIRequestsSection;
struct ActionItem;
struct ActionSetItem;
struct AdminSection;
struct AppTerminationSection;
struct BorderItem;
struct ColorItem;
struct ComponentItem;
struct ContainerItem;
struct FontItem;
struct GeneralSection;
struct InputSection;
struct MarginsItem;
struct MonitorItem;
struct MonitoringSection;
struct NavigationSection;
struct SideContainerSection;
struct SizeItem;
struct SlideItem;
struct TriggeredActionSetItem;
struct WindowPositionItem;
struct WindowSection;

namespace ActionItems {
struct AsleepComputer;
struct CloseOpenedWindow;
struct CopyToClipboard;
struct DisplayAlert;
struct DisplayNotification;
struct ExecuteCommand;
struct ExecuteJamfPolicy;
struct ExecuteScript;
struct Log;
struct LogoutUser;
struct NavigateToSlide;
struct OpenWindow;
struct PlaySound;
struct RestartComputer;
struct SaveInputs;
struct SendRequest;
struct ShutdownComputer;
struct TerminateApp;
struct UpdateVariable;
} // namespace ActionItems

namespace ComponentItems {
struct AppMonitor;
struct Button;
struct Image;
struct Input;
struct PDF;
struct Spacer;
struct Text;
struct Video;
struct Web;
} // namespace ComponentItems

namespace ComponentItems::Inputs {
struct Checkboxes;
struct List;
struct Text;
} // namespace ComponentItems::Inputs

namespace MonitorItems {
struct App;
struct File;
} // namespace MonitorItems

extern template struct ItemCoding<APIRequestItem>;
extern template struct ItemCoding<APIRequestsSection>;
extern template struct TaggedItemCoding<ActionItem>;
extern template struct ItemCoding<ActionSetItem>;
extern template struct ItemCoding<AdminSection>;
extern template struct ItemCoding<AppTerminationSection>;
extern template struct ItemCoding<BorderItem>;
extern template struct ItemCoding<ColorItem>;
extern template struct TaggedItemCoding<ComponentItem>;
extern template struct ItemCoding<ContainerItem>;
extern template struct ItemCoding<FontItem>;
extern template struct ItemCoding<GeneralSection>;
extern template struct ItemCoding<InputSection>;
extern template struct ItemCoding<MarginsItem>;
extern template struct TaggedItemCoding<MonitorItem>;
extern template struct ItemCoding<MonitoringSection>;
extern template struct ItemCoding<NavigationSection>;
extern template struct ItemCoding<SideContainerSection>;
extern template struct ItemCoding<SizeItem>;
extern template struct ItemCoding<SlideItem>;
extern template struct ItemCoding<TriggeredActionSetItem>;
extern template struct ItemCoding<WindowPositionItem>;
extern template struct ItemCoding<WindowSection>;
extern template struct ItemCoding<ActionItems::AsleepComputer>;
extern template struct ItemCoding<ActionItems::CloseOpenedWindow>;
extern template struct ItemCoding<ActionItems::CopyToClipboard>;
extern template struct ItemCoding<ActionItems::DisplayAlert>;
extern template struct ItemCoding<ActionItems::DisplayNotification>;
extern template struct ItemCoding<ActionItems::ExecuteCommand>;
extern template struct ItemCoding<ActionItems::ExecuteJamfPolicy>;
extern template struct ItemCoding<ActionItems::ExecuteScript>;
extern template struct ItemCoding<ActionItems::Log>;
extern template struct ItemCoding<ActionItems::LogoutUser>;
extern template struct ItemCoding<ActionItems::NavigateToSlide>;
extern template struct ItemCoding<ActionItems::OpenWindow>;
extern template struct ItemCoding<ActionItems::PlaySound>;
extern template struct ItemCoding<ActionItems::RestartComputer>;
extern template struct ItemCoding<ActionItems::SaveInputs>;
extern template struct ItemCoding<ActionItems::SendRequest>;
extern template struct ItemCoding<ActionItems::ShutdownComputer>;
extern template struct ItemCoding<ActionItems::TerminateApp>;
extern template struct ItemCoding<ActionItems::UpdateVariable>;
extern template struct ItemCoding<ComponentItems::AppMonitor>;
extern template struct ItemCoding<ComponentItems::Button>;
extern template struct ItemCoding<ComponentItems::Image>;
extern template struct TaggedItemCoding<ComponentItems::Input>;
extern template struct ItemCoding<ComponentItems::PDF>;
extern template struct ItemCoding<ComponentItems::Spacer>;
extern template struct ItemCoding<ComponentItems::Text>;
extern template struct ItemCoding<ComponentItems::Video>;
extern template struct ItemCoding<ComponentItems::Web>;
extern template struct ItemCoding<ComponentItems::Inputs::Checkboxes>;
extern template struct ItemCoding<ComponentItems::Inputs::List>;
extern template struct ItemCoding<ComponentItems::Inputs::Text>;
extern template struct ItemCoding<MonitorItems::App>;
extern template struct ItemCoding<MonitorItems::File>;

} // namespace velmar
