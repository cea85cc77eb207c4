#include <Configuration/SlideItem.h>

#include <Configuration/ColorItem.h>
#include <Configuration/ComponentItem.h>
#include <Configuration/ContainersComposition.h>
#include <Configuration/ItemCoding.h>
#include <Configuration/MarginsItem.h>

#include <fmt/format.h>

#include <algorithm>

namespace velmar {

namespace {

bool givesLarge(const ContainerItem &container) {
    return container._isLarge.wasGivenValueWhileDecoding();
}
bool givesRatio(const ContainerItem &container) {
    return container._widthRatio.wasGivenValueWhileDecoding();
}

/// Returns the sum in array order, since it is compared exactly and shown in messages.
double sumOfRatios(const std::vector<ContainerItem> &containers) {
    double sum = 0;
    for (const ContainerItem &container : containers) {
        if (givesRatio(container)) {
            sum += container._widthRatio().value_or(0);
        }
    }
    return sum;
}

std::optional<std::string> faultOfLarge(const std::vector<ContainerItem> &containers) {
    const auto isLarge = [](const ContainerItem &container) {
        return givesLarge(container) && container._isLarge();
    };
    if (containers.size() != 2) {
        return "'IsLarge' containers option only be used with 2 containers";
    }
    if (std::ranges::count_if(containers, isLarge) >= 2) {
        return "Only one container can have the 'IsLarge' option.";
    }
    return std::nullopt;
}

std::optional<std::string> faultOfRatios(const std::vector<ContainerItem> &containers) {
    const double sum = sumOfRatios(containers);
    const bool allGiveRatio = std::ranges::all_of(containers, givesRatio);
    if (sum > 1.0) {
        return fmt::format(
            "Widths ratios sum for containers should be lesser than or equal to 1 (currently equal to {})",
            textOf(sum));
    }
    if (sum == 1.0 && !allGiveRatio) {
        return "Widths ratios sum for containers is equal to 1 but other containers have no width "
               "specified.\n"
               "Please specify a 'WidthRatio' for the remaining containers or make the sum lesser than 1.";
    }
    if (sum < 1.0 && allGiveRatio) {
        return fmt::format("The sum of widths ratios should be equal to 1 (currently equal to {})",
                           textOf(sum));
    }
    return std::nullopt;
}

std::optional<std::string> faultOf(const std::vector<ContainerItem> &containers) {
    if (std::ranges::any_of(containers, givesLarge)) {
        if (std::ranges::any_of(containers, givesRatio)) {
            return "It's not possible to mix 'IsLarge' and 'WidthRatio' options for containers in a slide";
        }
        return faultOfLarge(containers);
    }
    return std::ranges::any_of(containers, givesRatio) ? faultOfRatios(containers) : std::nullopt;
}

} // namespace

void SlideItem::validate(const CodingPath &path) const {
    if (auto fault = faultOf(_containers())) {
        throw ConfigurationError(ConfigurationErrors::Custom{
            CodingPath(path, _containers.name().stringValue).text(), *std::move(fault)});
    }
}

SlideItem::ContainersComposition SlideItem::containersComposition() const {
    const std::vector<ContainerItem> &containers = _containers();
    if (std::ranges::any_of(containers, givesLarge)) {
        constexpr double large = 2.0 / 3.0;
        constexpr double small = 1.0 / 3.0;
        const bool firstIsLarge = containers.front()._isLarge();
        return {ContainersComposition::Ratio{
            {{containers[0], firstIsLarge ? large : small}, {containers[1], firstIsLarge ? small : large}}}};
    }
    const auto withRatio = std::ranges::count_if(containers, givesRatio);
    if (withRatio == 0) {
        return {ContainersComposition::NotSpecified{containers}};
    }
    const auto without = static_cast<double>(std::ssize(containers) - withRatio);
    const double share = (1.0 - sumOfRatios(containers)) / without;
    ContainersComposition::Ratio composition;
    for (const ContainerItem &container : containers) {
        composition.shares.push_back(
            {container, givesRatio(container) ? container._widthRatio().value_or(0) : share});
    }
    return {std::move(composition)};
}

template struct ItemCoding<ContainerItem>;
template struct ItemCoding<SlideItem>;

} // namespace velmar
