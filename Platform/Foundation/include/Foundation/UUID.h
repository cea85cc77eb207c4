#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <functional>
#include <string>

namespace velmar {

/// A unique identifier: 122 random bits (version 4).
class UUID {
public:
    UUID(); ///< Generates a new identifier. Throws std::system_error.

    /// Returns the usual form in upper case: "F81D4FAE-7DEC-41D0-A765-00A0C91E6BF6".
    [[nodiscard]] std::string text() const;

    auto operator<=>(const UUID &) const = default;

private:
    friend struct std::hash<UUID>;
    std::array<std::uint64_t, 2> bits_;
};

} // namespace velmar

template <>
struct std::hash<velmar::UUID> {
    std::size_t operator()(const velmar::UUID &uuid) const noexcept { return uuid.bits_[0]; }
};
