#pragma once

#include <Foundation/PropertyList.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

// Pieces of messages.

/// The shortest decimal text of a number that reads back the same, with a fraction ("0.6", "100000.0"); with
/// an exponent only below 0.0001 and from 2^54 on ("1e-05").
[[nodiscard]] std::string textOf(double number);

/// What the file has in place of what was expected: "'abc'", "the integer 5", "an array".
[[nodiscard]] std::string foundText(const PropertyList &value);

/// "string | Possible values: 'Top', 'Bottom'"
[[nodiscard]] std::string possibleValuesText(std::span<const std::string_view> rawStrings);

/// `["A", "B"]`
[[nodiscard]] std::string listText(const std::vector<std::string_view> &texts);

} // namespace velmar
