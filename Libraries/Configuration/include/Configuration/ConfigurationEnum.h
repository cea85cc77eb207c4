#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace velmar {

/// One case of an enumeration and its text in the file.
template <class E>
struct EnumCase {
    E value;
    std::string_view rawString;
};

/// An enumeration of the file. Decoding, encoding and messages use its table `casesOf`, declared beside it:
///
///     enum class Edge { top, bottom };
///     friend constexpr auto casesOf(Edge) {
///         return std::to_array<EnumCase<Edge>>({{Edge::top, "Top"}, {Edge::bottom, "Bottom"}});
///     }
template <class E>
concept ConfigurationEnum = std::is_enum_v<E> && requires(E value) {
    { casesOf(value).size() } -> std::convertible_to<std::size_t>;
};

template <ConfigurationEnum E>
inline constexpr auto enumCases = casesOf(E{});

template <ConfigurationEnum E>
[[nodiscard]] constexpr std::optional<E> enumValue(std::string_view rawString) {
    const auto found = std::ranges::find(enumCases<E>, rawString, &EnumCase<E>::rawString);
    return found == enumCases<E>.end() ? std::nullopt : std::optional<E>(found->value);
}

template <ConfigurationEnum E>
[[nodiscard]] constexpr std::string_view rawString(E value) {
    return std::ranges::find(enumCases<E>, value, &EnumCase<E>::value)->rawString;
}

/// Returns the texts of all cases, in the order of the table.
template <ConfigurationEnum E>
[[nodiscard]] std::span<const std::string_view> rawStringList() {
    static const auto texts = [] {
        std::array<std::string_view, enumCases<E>.size()> list;
        std::ranges::transform(enumCases<E>, list.begin(), &EnumCase<E>::rawString);
        return list;
    }();
    return texts;
}

} // namespace velmar
