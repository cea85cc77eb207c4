#pragma once

#include <Configuration/ActionItemProtocol.h>

#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>

namespace velmar {
struct Library;
} // namespace velmar

namespace velmar::ActionItems {

struct NavigateToSlide {
    static constexpr std::string_view typeName = "ActionItem.NavigateToSlide";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::navigateToSlide;

    /// Where to go.
    struct Jump {
        struct Index {
            std::int64_t index = 0; ///< Of a slide, from 0.
        };
        struct Offset {
            std::int64_t offset = 0; ///< From the slide on show.
        };
        std::variant<Index, Offset> value;
    };

    ActionItemProtocol common;
    KeyWrapper<std::optional<std::int64_t>> _index{"Index", requiredExcluding({"Offset"})};
    KeyWrapper<std::optional<std::int64_t>> _offset{"Offset", requiredExcluding({"Index"})};

    [[nodiscard]] Jump jump() const;

    /// There is a slide of that index. Throws ConfigurationError.
    void validateReferences(const Library &library) const;
};

} // namespace velmar::ActionItems
