#pragma once

// Precompiled header of all targets without Qt: the headers of the standard library and of fmt that most
// sources include. Sources must still include their own headers: scripts/lint and the fuzzers compile without
// this file.

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include <fmt/format.h>
