#include <Configuration/ActionItem.h>

#include <Configuration/GeneralSection.h>
#include <Configuration/ItemGroups.h>

#include <fmt/format.h>

namespace velmar {

ActionItem::NavigateToSlide::Jump ActionItem::NavigateToSlide::jump() const {
    if (const auto index = _index()) {
        return {Jump::Index{*index}};
    }
    return {Jump::Offset{_offset().value_or(0)}};
}

void ActionItem::NavigateToSlide::validateReferences(const Library &library) const {
    const auto count = static_cast<std::int64_t>(library.slides->size());
    if (const auto index = _index(); index && (*index < 0 || *index >= count)) {
        throw ConfigurationError(ConfigurationErrors::UnexpectedError{fmt::format(
            "When specified, the index ({}) should be greater than or equal to 0 and lesser than the "
            "slides count ({}).",
            *index, count)});
    }
}

void ActionItem::UpdateVariable::validate(const CodingPath &path) const {
    const std::string &name = _variable.rawValue();
    if (enumValue<GeneralSection::Placeholders>(bareVariableName(name))) {
        throw ConfigurationError(ConfigurationErrors::Custom{
            path.text(),
            fmt::format("Updating a placeholder ({}) with the 'UpdateVariable' action is not allowed",
                        name)});
    }
}

template struct TaggedItemCoding<ActionItem>;
template struct ItemCoding<ActionSetItem>;
template struct ItemCoding<TriggeredActionSetItem>;

} // namespace velmar
