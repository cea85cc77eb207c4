#pragma once

#include <Configuration/Components/AppMonitor.h>
#include <Configuration/Components/Image.h>
#include <Configuration/Components/PDF.h>
#include <Configuration/Components/Spacer.h>
#include <Configuration/Components/Text.h>
#include <Configuration/Components/Video.h>
#include <Configuration/Components/Web.h>
#include <Configuration/Whole.h>
