#include <Configuration/APIRequestItem.h>
#include <Configuration/Actions/AsleepComputer.h>
#include <Configuration/Actions/ExecuteCommand.h>
#include <Configuration/Actions/ExecuteJamfPolicy.h>
#include <Configuration/Actions/ExecuteScript.h>
#include <Configuration/Actions/LogoutUser.h>
#include <Configuration/Actions/RestartComputer.h>
#include <Configuration/Actions/SaveInputs.h>
#include <Configuration/Actions/SendRequest.h>
#include <Configuration/Actions/ShutdownComputer.h>
#include <Configuration/Actions/TerminateApp.h>
#include <Configuration/ConditionCoding.h>
#include <Configuration/ItemCoding.h>

namespace velmar {

template struct ItemCoding<ActionItems::AsleepComputer>;
template struct ItemCoding<ActionItems::ExecuteCommand>;
template struct ItemCoding<ActionItems::ExecuteJamfPolicy>;
template struct ItemCoding<ActionItems::ExecuteScript>;
template struct ItemCoding<ActionItems::LogoutUser>;
template struct ItemCoding<ActionItems::RestartComputer>;
template struct ItemCoding<ActionItems::SaveInputs>;
template struct ItemCoding<ActionItems::SendRequest>;
template struct ItemCoding<ActionItems::ShutdownComputer>;
template struct ItemCoding<ActionItems::TerminateApp>;

} // namespace velmar
