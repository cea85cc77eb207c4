#include <Configuration/Actions/CloseOpenedWindow.h>
#include <Configuration/Actions/CopyToClipboard.h>
#include <Configuration/Actions/DisplayAlert.h>
#include <Configuration/Actions/DisplayNotification.h>
#include <Configuration/Actions/Log.h>
#include <Configuration/Actions/NavigateToSlide.h>
#include <Configuration/Actions/OpenWindow.h>
#include <Configuration/Actions/PlaySound.h>
#include <Configuration/Actions/UpdateVariable.h>
#include <Configuration/ConditionCoding.h>
#include <Configuration/ItemCoding.h>
#include <Configuration/Placeholders.h>
#include <Configuration/SizeItem.h>
#include <Configuration/SlideItem.h>
#include <Configuration/URLCoding.h>
#include <Configuration/WindowPositionItem.h>

#include <fmt/format.h>

namespace velmar {

namespace ActionItems {

NavigateToSlide::Jump NavigateToSlide::jump() const {
    if (const auto index = _index()) {
        return {Jump::Index{*index}};
    }
    return {Jump::Offset{_offset().value_or(0)}};
}

void NavigateToSlide::validateReferences(const Library &library) const {
    const auto count = static_cast<std::int64_t>(library.slides->size());
    if (const auto index = _index(); index && (*index < 0 || *index >= count)) {
        throw ConfigurationError(ConfigurationErrors::UnexpectedError{fmt::format(
            "When specified, the index ({}) should be greater than or equal to 0 and lesser than the "
            "slides count ({}).",
            *index, count)});
    }
}

void UpdateVariable::validate(const CodingPath &path) const {
    const std::string &name = _variable.rawValue();
    if (enumValue<Placeholders>(bareVariableName(name))) {
        throw ConfigurationError(ConfigurationErrors::Custom{
            path.text(),
            fmt::format("Updating a placeholder ({}) with the 'UpdateVariable' action is not allowed",
                        name)});
    }
}

} // namespace ActionItems

template struct ItemCoding<ActionItems::CloseOpenedWindow>;
template struct ItemCoding<ActionItems::CopyToClipboard>;
template struct ItemCoding<ActionItems::DisplayAlert>;
template struct ItemCoding<ActionItems::DisplayNotification>;
template struct ItemCoding<ActionItems::Log>;
template struct ItemCoding<ActionItems::NavigateToSlide>;
template struct ItemCoding<ActionItems::OpenWindow>;
template struct ItemCoding<ActionItems::PlaySound>;
template struct ItemCoding<ActionItems::UpdateVariable>;

} // namespace velmar
