#include <Configuration/Configuration.h>

#include <Configuration/ItemCoding.h>
#include <Configuration/Library.h>

#include <fmt/format.h>

namespace velmar {

namespace {

/// Applies the parents of the models in a book of the configuration.
template <class Model>
void resolve(KeyWrapper<Book<Model>> &holder, const PropertyList &file, DecodingContext &context) {
    if (!holder.wasGivenValueWhileDecoding()) {
        return;
    }
    const std::string key(holder.name().stringValue);
    try {
        holder.modify([](Book<Model> &book) { book.resolve(); });
    } catch (const BookError &error) {
        context.noteFailure(key, file.dictionary()->find(key)->offset());
        throw ConfigurationError(ConfigurationErrors::Custom{key, error.errorDescription()});
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
