#include <Configuration/Configuration.h>

#include "VariablesCheck.h"

#include <Configuration/APIRequestItem.h>
#include <Configuration/APIRequestsSection.h>
#include <Configuration/ActionItem.h>
#include <Configuration/ActionSetItem.h>
#include <Configuration/ActionTrigger.h>
#include <Configuration/AdminSection.h>
#include <Configuration/AppTerminationSection.h>
#include <Configuration/ColorItem.h>
#include <Configuration/ConditionCoding.h>
#include <Configuration/ContainerItem.h>
#include <Configuration/DecodingNotes.h>
#include <Configuration/ExpressionsBookCoding.h>
#include <Configuration/FontItem.h>
#include <Configuration/GeneralSection.h>
#include <Configuration/InputSection.h>
#include <Configuration/ItemCoding.h>
#include <Configuration/Library.h>
#include <Configuration/MonitorItem.h>
#include <Configuration/MonitoringSection.h>
#include <Configuration/NavigationSection.h>
#include <Configuration/SideContainerSection.h>
#include <Configuration/SlideItem.h>
#include <Configuration/Texts.h>
#include <Configuration/VisitedValue.h>
#include <Configuration/WindowPositionItem.h>
#include <Configuration/WindowSection.h>
#include <Foundation/PropertyListDocument.h>

#include <fmt/format.h>

namespace velmar {

namespace {

/// Returns the key of the faulty model in its book; empty for none.
std::string modelOf(const BookError &error) {
    return std::visit(
        [](const auto &fault) -> std::string {
            if constexpr (requires { fault.name; }) {
                return fault.name;
            } else {
                return {};
            }
        },
        error.value());
}

/// Applies the parents of the models in the book that `dictionary` contains.
template <class Model>
void resolve(KeyWrapper<Book<Model>> &holder, const PropertyListValue &dictionary, const CodingPath &path,
             DecodingContext &context) {
    if (!holder.wasGivenValueWhileDecoding()) {
        return;
    }
    try {
        holder.modify([](Book<Model> &book) { book.resolve(); });
    } catch (const BookError &error) {
        const std::string_view key = holder.name().stringValue;
        const std::string model = modelOf(error);
        const std::string_view parent = makeDefault<Model>()._parentModelName.name().stringValue;
        const CodingPath bookPath(path, key);
        const CodingPath modelPath(bookPath, model);
        const std::string parentPath = CodingPath(modelPath, parent).text();
        const PropertyListValue *const value = dictionary.find(key)->find(std::string_view(model));
        const PropertyListValue *const name = value != nullptr ? value->find(parent) : nullptr;
        context.noteFailure(parentPath, name != nullptr ? name->offset() : dictionary.offset());
        throw ConfigurationError(ConfigurationErrors::Custom{parentPath, error.errorDescription()});
    }
}

void resolveBooks(Configuration &configuration, const PropertyListValue &file, DecodingContext &context) {
    const CodingPath root;
    resolve(configuration._colorStyles, file, root, context);
    resolve(configuration._fontStyles, file, root, context);
    auto &requests = configuration._apiRequests;
    if (requests.wasGivenValueWhileDecoding()) {
        const std::string_view key = requests.name().stringValue;
        requests.modify([&](APIRequestsSection &section) {
            resolve(section._models, *file.find(key), CodingPath(root, key), context);
        });
    }
}

} // namespace

std::shared_ptr<const Configuration> Configuration::decode(const PropertyListValue &file,
                                                           DecodingNotes *notes) {
    if (!file.isDictionary()) {
        throw ConfigurationError(ConfigurationErrors::UnexpectedError{
            fmt::format("The root of the configuration is {}, not a dictionary.", foundText(file))});
    }
    try {
        DecodingContext context(notes);
        const auto configuration =
            std::make_shared<Configuration>(Decodable<Configuration>::decode({file, CodingPath(), context}));
        resolveBooks(*configuration, file, context);
        context.settleReferences({.fontStyles = &configuration->_fontStyles.rawValue(),
                                  .colorStyles = &configuration->_colorStyles.rawValue(),
                                  .apiRequests = &configuration->_apiRequests.rawValue()._models.rawValue(),
                                  .slides = &configuration->_slides.rawValue()},
                                 file);
        checkVariables(*configuration, file, context);
        configuration->declaredVariables = context.takeDeclaredVariables();
        return configuration;
    } catch (const LocalizedError &) {
        throw;
    } catch (const std::exception &error) {
        throw ConfigurationError(ConfigurationErrors::UnexpectedError{error.what()});
    }
}

std::shared_ptr<const Configuration> Configuration::decode(const PropertyList &file, DecodingNotes *notes) {
    return decode(PropertyListDocument::of(file).root(), notes);
}

PropertyList Configuration::encode() const {
    return *Decodable<Configuration>::encode(*this);
}

void Configuration::visitValues(const PropertyListValue &file, ValueVisitor &visitor) const {
    const CodingPath root;
    velmar::visitValues(*this, {file, root}, visitor);
}

Descriptions Configuration::describe() {
    Descriptions items;
    static_cast<void>(Decodable<Configuration>::describe(items));
    return items;
}

void Configuration::validate(const CodingPath & /*path*/) const {
    requireSlidesFor(_window()._onScreen());
}

bool Configuration::hasSameWindow(const Configuration &other) const {
    const auto withoutPopover = [](WindowSection section) {
        section._menuBarSize.set({});
        return Decodable<WindowSection>::encode(section);
    };
    return withoutPopover(_window.rawValue()) == withoutPopover(other._window.rawValue());
}

void Configuration::requireSlidesFor(OnScreen mode) const {
    if (mode == OnScreen::menuBar) {
        if (!menuBarSlideWasSpecified()) {
            throw ConfigurationError(ConfigurationErrors::Custom{
                "MenuBarSlide",
                "The 'MenuBarSlide' should be specified when 'Window.OnScreen' is set to 'MenuBar'."});
        }
    } else if (_slides().empty()) {
        throw ConfigurationError(ConfigurationErrors::Custom{
            "Slides", "The 'Slides' configuration array should be specified and cannot be empty when "
                      "'Window.OnScreen' is set to 'Simple', 'BlurredBackground', or 'Fullscreen'."});
    }
}

} // namespace velmar
