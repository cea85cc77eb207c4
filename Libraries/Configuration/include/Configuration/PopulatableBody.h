#pragma once

#include <Configuration/PopulatableValue.h>

namespace velmar {

struct BodyItem;

template <>
struct IsPopulatable<BodyItem> : std::true_type {};

} // namespace velmar
