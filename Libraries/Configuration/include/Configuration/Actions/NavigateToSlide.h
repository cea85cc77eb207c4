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

    /// The target of the navigation.
    struct Jump {
        struct Index {
            std::int64_t index = 0; ///< Index of a slide, from 0.
        };
        struct Offset {
            std::int64_t offset = 0; ///< Relative to the current slide.
        };
        std::variant<Index, Offset> value;
    };

    ActionItemProtocol common;
    KeyWrapper<std::optional<std::int64_t>> _index{"Index", requiredExcluding({"Offset"})};
    KeyWrapper<std::optional<std::int64_t>> _offset{"Offset", requiredExcluding({"Index"})};

    [[nodiscard]] Jump jump() const;

    /// Checks that the slide of an index exists. Throws ConfigurationError.
    void validateReferences(const Library &library) const;
};

} // namespace velmar::ActionItems
