#pragma once

#include <Configuration/Components/Input.h>
#include <Configuration/Whole.h>
