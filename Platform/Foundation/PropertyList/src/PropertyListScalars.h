#pragma once

#include <Foundation/PropertyListValue.h>

#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// Conversion of numbers, dates and data from and to the text of the XML form. Parsing is strict, except for
/// white space around the text (for data also within it), and returns std::nullopt for invalid text.

/// Parses a decimal or hexadecimal (0x) number with an optional sign, from -2^63 to 2^64 - 1.
[[nodiscard]] std::optional<PropertyListValue> integerFrom(std::string_view text) noexcept;

/// Parses a number in the syntax of strtod in the C locale within the range of double, or nan, inf or
/// infinity in any letter case.
[[nodiscard]] std::optional<double> realFrom(std::string_view text);

/// Parses a valid calendar date such as 2024-02-29T23:59:59Z.
[[nodiscard]] std::optional<PropertyList::Date> dateFrom(std::string_view text) noexcept;

[[nodiscard]] std::optional<PropertyList::Data> dataFrom(std::string_view base64);

/// Returns the shortest text that reads back as the same number.
[[nodiscard]] std::string textOfReal(double value);

/// Returns the date rounded down to whole seconds, or std::nullopt outside of the years 0 to 9999.
[[nodiscard]] std::optional<std::string> textOfDate(PropertyList::Date date);

[[nodiscard]] std::string base64Of(const PropertyList::Data &data);

} // namespace velmar
