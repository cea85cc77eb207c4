#pragma once

#include <Configuration/ConditionKeyWrapper.h>
#include <Configuration/ConfigurationEnum.h>

#include <array>
#include <optional>

namespace velmar {

struct BorderItem;
struct ComponentItem;
struct MarginsItem;

/// Types of components. Declared outside ComponentItem, because its variant needs complete alternatives.
namespace ComponentItems {

enum class TypeIdentifier { text, image, button, web, spacer, appMonitor, pdf, video, input };

constexpr auto casesOf(TypeIdentifier) {
    return std::to_array<EnumCase<TypeIdentifier>>({{TypeIdentifier::text, "Text"},
                                                    {TypeIdentifier::image, "Image"},
                                                    {TypeIdentifier::button, "Button"},
                                                    {TypeIdentifier::web, "Web"},
                                                    {TypeIdentifier::spacer, "Spacer"},
                                                    {TypeIdentifier::appMonitor, "AppMonitor"},
                                                    {TypeIdentifier::pdf, "PDF"},
                                                    {TypeIdentifier::video, "Video"},
                                                    {TypeIdentifier::input, "Input"}});
}

/// The keys common to all components; the first member of each.
struct ComponentItemProtocol {
    using IsKeyGroup = void;

    KeyWrapper<std::optional<MarginsItem>> _margins{"Margins", optional};
    KeyWrapper<std::optional<BorderItem>> _border{"Border", optional};
    ConditionKeyWrapper _condition{"Condition", optional}; ///< Absent: always shown.
};

} // namespace ComponentItems

// Access to a component for sources that don't need all its alternatives.

[[nodiscard]] ComponentItems::TypeIdentifier typeIdentifierOf(const ComponentItem &component);

/// Returns the alternative, or nullptr if the component is another one.
template <class Item>
[[nodiscard]] const Item *itemOf(const ComponentItem &component);

} // namespace velmar
