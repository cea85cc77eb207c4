#pragma once

// Precompiled header of the tests without Qt.

#include "Standard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
