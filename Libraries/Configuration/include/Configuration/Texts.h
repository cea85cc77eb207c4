#pragma once

#include <Foundation/NumberText.h>
#include <Foundation/PropertyListValue.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

// Pieces of messages.

/// What the file has in place of what was expected: "'abc'", "the integer 5", "an array".
[[nodiscard]] std::string foundText(const PropertyListValue &value);

/// "string | Possible values: 'Top', 'Bottom'"
[[nodiscard]] std::string possibleValuesText(std::span<const std::string_view> rawStrings);

/// `["A", "B"]`
[[nodiscard]] std::string listText(const std::vector<std::string_view> &texts);

} // namespace velmar
