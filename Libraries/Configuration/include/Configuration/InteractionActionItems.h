#pragma once

#include <Configuration/Actions/CloseOpenedWindow.h>
#include <Configuration/Actions/CopyToClipboard.h>
#include <Configuration/Actions/DisplayAlert.h>
#include <Configuration/Actions/DisplayNotification.h>
#include <Configuration/Actions/Log.h>
#include <Configuration/Actions/NavigateToSlide.h>
#include <Configuration/Actions/OpenWindow.h>
#include <Configuration/Actions/PlaySound.h>
#include <Configuration/Actions/UpdateVariable.h>
#include <Configuration/Whole.h>
