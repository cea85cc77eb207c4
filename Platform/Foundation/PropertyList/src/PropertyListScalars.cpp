#include "PropertyListScalars.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <locale.h>
#include <stdlib.h>
#include <string.h>
#include <strings.h>

namespace velmar {

static constexpr std::string_view whiteSpace = " \t\r\n";
static constexpr std::string_view base64Digits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
static constexpr std::int8_t isNoDigit = -1;
static constexpr std::chrono::sys_days referenceDay{std::chrono::year(2001) / 1 / 1};

static std::string_view trimmed(std::string_view text) noexcept {
    const std::size_t first = text.find_first_not_of(whiteSpace);
    if (first == text.npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
}

static bool isDigit(char character) noexcept {
    return character >= '0' && character <= '9';
}

std::optional<PropertyListValue> integerFrom(std::string_view text) noexcept {
    text = trimmed(text);
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    const bool isHexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (isHexadecimal) {
        text.remove_prefix(2);
    }
    // from_chars accepts no sign for an unsigned type, so a second sign is rejected.
    std::uint64_t magnitude = 0;
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, magnitude, isHexadecimal ? 16 : 10);
    if (error != std::errc() || stop != end) {
        return std::nullopt;
    }
    if (!isNegative) {
        return PropertyListValue(magnitude);
    }
    if (magnitude > std::uint64_t{1} << 63) {
        return std::nullopt;
    }
    return PropertyListValue(static_cast<std::int64_t>(~magnitude + 1));
}

static locale_t cLocale() {
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

std::optional<double> realFrom(std::string_view text) {
    text = trimmed(text);
    // Fast path. strtod handles the remaining syntax and numbers outside of the range of double.
    double usual = 0;
    const char *const last = text.data() + text.size();
    if (const auto [stop, error] = std::from_chars(text.data(), last, usual);
        error == std::errc() && stop == last && std::isfinite(usual)) {
        return usual;
    }
    const std::string whole(text);
    const char *number = whole.c_str() + (whole.starts_with('-') || whole.starts_with('+') ? 1 : 0);
    const bool isWord = strcasecmp(number, "nan") == 0 || strcasecmp(number, "inf") == 0 ||
                        strcasecmp(number, "infinity") == 0;
    if (!isWord && !isDigit(*number) && *number != '.') {
        return std::nullopt;
    }
    char *end = nullptr;
    const double value = strtod_l(whole.c_str(), &end, cLocale());
    if (end != whole.c_str() + whole.size() || (std::isinf(value) && !isWord)) {
        return std::nullopt;
    }
    return value;
}

std::optional<PropertyList::Date> dateFrom(std::string_view text) noexcept {
    constexpr std::string_view pattern = "0000-00-00T00:00:00Z";
    text = trimmed(text);
    if (text.size() != pattern.size()) {
        return std::nullopt;
    }
    for (std::size_t index = 0; index < pattern.size(); ++index) {
        if (pattern[index] == '0' ? !isDigit(text[index]) : text[index] != pattern[index]) {
            return std::nullopt;
        }
    }
    const auto number = [text](std::size_t first, std::size_t length) {
        int value = 0;
        for (const char digit : text.substr(first, length)) {
            value = value * 10 + (digit - '0');
        }
        return value;
    };
    const std::chrono::year_month_day day{std::chrono::year(number(0, 4)),
                                          std::chrono::month(static_cast<unsigned>(number(5, 2))),
                                          std::chrono::day(static_cast<unsigned>(number(8, 2)))};
    const int hours = number(11, 2);
    const int minutes = number(14, 2);
    const int seconds = number(17, 2);
    if (!day.ok() || hours > 23 || minutes > 59 || seconds > 59) {
        return std::nullopt;
    }
    const auto days = (std::chrono::sys_days(day) - referenceDay).count();
    return PropertyList::Date{
        static_cast<double>(std::int64_t{days} * 86400 + hours * 3600 + minutes * 60 + seconds)};
}

std::optional<PropertyList::Data> dataFrom(std::string_view base64) {
    static const auto digitValues = [] {
        std::array<std::int8_t, 256> values{};
        values.fill(isNoDigit);
        for (std::size_t index = 0; index < base64Digits.size(); ++index) {
            values[static_cast<unsigned char>(base64Digits[index])] = static_cast<std::int8_t>(index);
        }
        return values;
    }();

    PropertyList::Data data;
    data.bytes.reserve(base64.size() / 4 * 3 + 3);
    std::uint32_t group = 0;
    unsigned digits = 0;
    unsigned padding = 0;
    for (const char character : base64) {
        if (whiteSpace.find(character) != whiteSpace.npos) {
            continue;
        }
        const std::int8_t value = digitValues[static_cast<unsigned char>(character)];
        if (character == '=') {
            ++padding;
        } else if (value == isNoDigit || padding > 0) {
            return std::nullopt;
        }
        group = group << 6 | (character == '=' ? 0U : static_cast<std::uint32_t>(value));
        if (++digits == 4) {
            for (unsigned byte = 0; byte < 3; ++byte) {
                data.bytes.push_back(static_cast<std::byte>(group >> (16 - 8 * byte) & 0xFF));
            }
            group = 0;
            digits = 0;
        }
    }
    if (digits != 0 || padding > 2) {
        return std::nullopt;
    }
    // The bits under the padding must be zero.
    for (; padding > 0; --padding) {
        if (data.bytes.back() != std::byte{0}) {
            return std::nullopt;
        }
        data.bytes.pop_back();
    }
    data.bytes.shrink_to_fit();
    return data;
}

std::string textOfReal(double value) {
    if (std::isnan(value)) {
        return "nan";
    }
    if (std::isinf(value)) {
        return value < 0 ? "-infinity" : "+infinity";
    }
    char buffer[32];
    const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, end);
}

std::optional<std::string> textOfDate(PropertyList::Date date) {
    const double seconds = std::floor(date.secondsSinceReferenceDate);
    constexpr double limit = 4e11; // beyond the year 9999 and within the range of std::chrono
    if (!(std::abs(seconds) < limit)) {
        return std::nullopt;
    }
    const auto moment =
        std::chrono::sys_seconds(referenceDay) + std::chrono::seconds(static_cast<std::int64_t>(seconds));
    const auto midnight = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::year_month_day day(midnight);
    const std::chrono::hh_mm_ss time(moment - midnight);
    const int year = static_cast<int>(day.year());
    if (year < 0 || year > 9999) {
        return std::nullopt;
    }
    return fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}Z", year, static_cast<unsigned>(day.month()),
                       static_cast<unsigned>(day.day()), time.hours().count(), time.minutes().count(),
                       time.seconds().count());
}

std::string base64Of(const PropertyList::Data &data) {
    std::string text;
    text.reserve((data.bytes.size() + 2) / 3 * 4);
    for (std::size_t index = 0; index < data.bytes.size(); index += 3) {
        const std::size_t count = std::min<std::size_t>(3, data.bytes.size() - index);
        std::uint32_t group = 0;
        for (std::size_t byte = 0; byte < 3; ++byte) {
            group =
                group << 8 | (byte < count ? std::to_integer<std::uint32_t>(data.bytes[index + byte]) : 0);
        }
        for (std::size_t digit = 0; digit < 4; ++digit) {
            text += digit <= count ? base64Digits[group >> (18 - 6 * digit) & 0x3F] : '=';
        }
    }
    return text;
}

} // namespace velmar
