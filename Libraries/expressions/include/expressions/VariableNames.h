#pragma once

#include <functional>
#include <set>
#include <string>

namespace velmar {

using VariableNames = std::set<std::string, std::less<>>;

} // namespace velmar
