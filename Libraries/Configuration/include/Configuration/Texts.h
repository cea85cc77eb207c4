#pragma once

#include <Foundation/NumberText.h>
#include <Foundation/PropertyListValue.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

// Parts of messages.

/// Returns a description of an unexpected value, such as "'abc'", "the integer 5" or "an array".
[[nodiscard]] std::string foundText(const PropertyListValue &value);

/// Returns a text such as "string | Possible values: 'Top', 'Bottom'".
[[nodiscard]] std::string possibleValuesText(std::span<const std::string_view> rawStrings);

/// Returns a text such as `["A", "B"]`.
[[nodiscard]] std::string listText(const std::vector<std::string_view> &texts);

} // namespace velmar
