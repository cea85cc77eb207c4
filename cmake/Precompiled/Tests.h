#pragma once

// As Standard.h, for tests without Qt.

#include "Standard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
