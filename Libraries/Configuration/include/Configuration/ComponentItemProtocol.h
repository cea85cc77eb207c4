#pragma once

#include <Configuration/BorderItem.h>
#include <Configuration/ConditionKeyWrapper.h>
#include <Configuration/MarginsItem.h>

namespace velmar {

/// The kinds of components; the names to use are those within ComponentItem. They stand outside of it because
/// a variant wants its alternatives whole.
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

/// The keys that every component begins with.
struct ComponentItemProtocol {
    using IsKeyGroup = void;

    KeyWrapper<std::optional<MarginsItem>> _margins{"Margins", optional};
    KeyWrapper<std::optional<BorderItem>> _border{"Border", optional};
    ConditionKeyWrapper _condition{"Condition", optional}; ///< Absent: always shown.
};

} // namespace ComponentItems

} // namespace velmar
