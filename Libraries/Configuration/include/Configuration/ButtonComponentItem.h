#pragma once

#include <Configuration/Components/Button.h>
#include <Configuration/Whole.h>
