#include <Configuration/Configuration.h>

#include "VariablesCheck.h"

#include <Configuration/ItemCoding.h>
#include <Configuration/Library.h>

#include <fmt/format.h>

namespace velmar {

namespace {

/// The key within its book of the model that an error is about; empty for none.
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

/// Applies the parents of the models in a book of the configuration.
template <class Model>
void resolve(KeyWrapper<Book<Model>> &holder, const PropertyList &file, DecodingContext &context) {
    if (!holder.wasGivenValueWhileDecoding()) {
        return;
    }
    try {
        holder.modify([](Book<Model> &book) { book.resolve(); });
    } catch (const BookError &error) {
        const std::string key(holder.name().stringValue);
        const std::string model = modelOf(error);
        const std::string parent(makeDefault<Model>()._parentModelName.name().stringValue);
        const std::string path = fmt::format("{}.{}.{}", key, model, parent);
        const PropertyList *value = file.dictionary()->find(key)->dictionary()->find(model);
        context.noteFailure(path,
                            value != nullptr ? value->dictionary()->find(parent)->offset() : file.offset());
        throw ConfigurationError(ConfigurationErrors::Custom{path, error.errorDescription()});
    }
}

} // namespace

std::shared_ptr<const Configuration> Configuration::decode(const PropertyList &file, DecodingNotes *notes) {
    if (file.dictionary() == nullptr) {
        throw ConfigurationError(ConfigurationErrors::UnexpectedError{
            fmt::format("The root of the configuration is {}, not a dictionary.", foundText(file))});
    }
    try {
        DecodingContext context(notes);
        const auto configuration =
            std::make_shared<Configuration>(Decodable<Configuration>::decode({file, CodingPath(), context}));
        resolve(configuration->_colorStyles, file, context);
        resolve(configuration->_fontStyles, file, context);
        context.settleReferences(
            {&configuration->_fontStyles.rawValue(), &configuration->_colorStyles.rawValue()}, file);
        checkVariables(*configuration, file, context);
        configuration->variablesRecords = context.takeVariablesRecords();
        configuration->declaredVariables = context.declaredVariables();
        return configuration;
    } catch (const LocalizedError &) {
        throw;
    } catch (const std::exception &error) {
        throw ConfigurationError(ConfigurationErrors::UnexpectedError{error.what()});
    }
}

PropertyList Configuration::encode() const {
    return *Decodable<Configuration>::encode(*this);
}

void Configuration::validate(const CodingPath & /*path*/) const {
    if (_window()._onScreen() == WindowSection::OnScreen::menuBar) {
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
