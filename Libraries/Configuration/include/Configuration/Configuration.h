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

/// The root of a configuration file. The keys are decoded in the order of the members, and the first fault is
/// reported. A source that reads a key includes the header of its section.
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

    VariableNames declaredVariables; ///< Declared by keys of the file; without General.Variables.

    [[nodiscard]] bool slidesWereSpecified() const { return _slides.wasGivenValueWhileDecoding(); }
    [[nodiscard]] bool menuBarSlideWasSpecified() const {
        return _menuBarSlideSection.wasGivenValueWhileDecoding();
    }

    /// Decodes a file, settles its references and checks its variables. The result never changes. `notes`, if
    /// not null, receives the skipped parts of the file and the place of a failure. Throws
    /// ConfigurationError, or ExpressionError if a text or condition uses an undefined variable.
    [[nodiscard]] static std::shared_ptr<const Configuration> decode(const PropertyListValue &file,
                                                                     DecodingNotes *notes = nullptr);
    [[nodiscard]] static std::shared_ptr<const Configuration> decode(const PropertyList &file,
                                                                     DecodingNotes *notes = nullptr);

    /// Encodes the keys that were given, set in code, or are required.
    [[nodiscard]] PropertyList encode() const;

    /// Visits every value that `file` gives, from the root down: each value before the values within it, and
    /// keys in the order of declaration. The configuration must have been decoded from `file`.
    void visitValues(const PropertyListValue &file, ValueVisitor &visitor) const;

    /// Describes the format of the file, from the root "Configuration" down.
    [[nodiscard]] static Descriptions describe();

    /// Checks that the mode of the window has slides to show. Throws ConfigurationError.
    void validate(const CodingPath &path) const;

    /// Checks that `mode` has slides to show. Throws ConfigurationError.
    void requireSlidesFor(OnScreen mode) const;

    /// Whether the window sections are equal, apart from the size of the popover.
    [[nodiscard]] bool hasSameWindow(const Configuration &other) const;
};

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
