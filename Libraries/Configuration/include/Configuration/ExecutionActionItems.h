#pragma once

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
#include <Configuration/Whole.h>
