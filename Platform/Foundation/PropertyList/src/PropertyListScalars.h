#pragma once

#include <Foundation/PropertyListValue.h>

#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// The texts of numbers, dates and data in the XML form. Reading is strict and takes white space around the
/// text (within it for data); nothing for a text that is none.

/// Decimal or 0x and hexadecimal, with an optional sign, from -2^63 to 2^64 - 1.
[[nodiscard]] std::optional<PropertyListValue> integerFrom(std::string_view text) noexcept;

/// What strtod takes in the C locale and a double can hold, or nan, inf or infinity in any case.
[[nodiscard]] std::optional<double> realFrom(std::string_view text);

/// Of the calendar, as in 2024-02-29T23:59:59Z.
[[nodiscard]] std::optional<PropertyList::Date> dateFrom(std::string_view text) noexcept;

[[nodiscard]] std::optional<PropertyList::Data> dataFrom(std::string_view base64);

/// The shortest text that reads back the same.
[[nodiscard]] std::string textOfReal(double value);

/// Whole seconds, those before rounded down; nothing outside of the years 0 to 9999.
[[nodiscard]] std::optional<std::string> textOfDate(PropertyList::Date date);

[[nodiscard]] std::string base64Of(const PropertyList::Data &data);

} // namespace velmar
