#pragma once

#include <Configuration/ConditionKeyWrapper.h>
#include <Configuration/KeyWrapper.h>
#include <expressions/VariableNames.h>

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace velmar {

class ValueVisitor;
class CodingPath;
class Descriptions;
class PropertyList;
class PropertyListValue;
struct DecodingNotes;

struct AdminSection;
struct APIRequestsSection;
struct AppTerminationSection;
template <class T>
class Book;
struct ColorItem;
template <class T>
class ExpressionsBook;
struct FontItem;
struct GeneralSection;
struct InputSection;
struct MonitoringSection;
struct NavigationSection;
enum class OnScreen;
struct SideContainerSection;
struct SlideItem;
struct TriggeredActionSetItem;
struct WindowSection;

/// The root of a configuration file. Its keys are decoded in the order of the members: the first fault is the
/// one that is reported. A source that reads a key includes the header of its section.
struct Configuration {
    static constexpr std::string_view typeName = "Configuration";

    KeyWrapper<AdminSection> _admin{"Admin", optional};
    KeyWrapper<InputSection> _input{"Input", optional};
    KeyWrapper<Book<ColorItem>> _colorStyles{"ColorStyles", optional};
    KeyWrapper<Book<FontItem>> _fontStyles{"FontStyles", optional};
    KeyWrapper<NavigationSection> _navigation{"Navigation", optional};
    KeyWrapper<AppTerminationSection> _appTermination{"AppTermination", optional};
    KeyWrapper<GeneralSection> _general{"General", optional};
    KeyWrapper<WindowSection> _window{"Window", optional};
    KeyWrapper<std::vector<SlideItem>> _slides{"Slides", optional};
    KeyWrapper<SlideItem> _menuBarSlideSection{"MenuBarSlide", optional};
    KeyWrapper<std::optional<SideContainerSection>> _sideContainer{"SideContainer", optional};
    KeyWrapper<ExpressionsBook<Expression>> _conditions{"Conditions", optional};
    KeyWrapper<MonitoringSection> _monitoring{"Monitoring", optional};
    KeyWrapper<APIRequestsSection> _apiRequests{"APIRequests", optional};
    KeyWrapper<std::vector<TriggeredActionSetItem>> _actionSets{"ActionSets", optional};

    VariableNames declaredVariables; ///< What keys of the file brought into being, beside General.Variables.

    [[nodiscard]] bool slidesWereSpecified() const { return _slides.wasGivenValueWhileDecoding(); }
    [[nodiscard]] bool menuBarSlideWasSpecified() const {
        return _menuBarSlideSection.wasGivenValueWhileDecoding();
    }

    /// Decodes a file, settles its references and checks its variables; the result never changes. Throws
    /// ConfigurationError, or ExpressionError where a text or condition uses what nobody defines. `notes`,
    /// where given, takes what the decoding passes over in silence and the place of its failure.
    [[nodiscard]] static std::shared_ptr<const Configuration> decode(const PropertyListValue &file,
                                                                     DecodingNotes *notes = nullptr);
    [[nodiscard]] static std::shared_ptr<const Configuration> decode(const PropertyList &file,
                                                                     DecodingNotes *notes = nullptr);

    /// The mirror of decoding: what was given, set by code or is required.
    [[nodiscard]] PropertyList encode() const;

    /// Visits every value that `file` gives, from the root down, each before those within it and the keys of
    /// an item in the order of declaration. `file` must be what this was decoded from.
    void visitValues(const PropertyListValue &file, ValueVisitor &visitor) const;

    /// All that a file may hold, from the root "Configuration" down.
    [[nodiscard]] static Descriptions describe();

    /// There is something to show in the mode of the window. Throws ConfigurationError.
    void validate(const CodingPath &path) const;

    /// There is something to show in that mode. Throws ConfigurationError.
    void requireSlidesFor(OnScreen mode) const;

    /// Whether the section of the window says the same, but for the size of the popover.
    [[nodiscard]] bool hasSameWindow(const Configuration &other) const;
};

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
