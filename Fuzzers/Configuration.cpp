// Fuzzes the decoding of a configuration: every input decodes or is refused with a LocalizedError.
#include <Configuration/Configuration.h>
#include <Configuration/Plugin.h>
#include <Foundation/LocalizedError.h>
#include <Foundation/PropertyListDocument.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <span>
#include <string>
#include <utility>

namespace {

// Returns a copy without the texts of colours. Colours are written without leading zeros, which changes their
// value when they are read again.
velmar::PropertyList withoutColors(const velmar::PropertyList &value) {
    using velmar::PropertyList;
    if (const std::string *const text = value.string(); text != nullptr && text->starts_with('#')) {
        return PropertyList(std::string());
    }
    if (const auto *const array = value.array()) {
        PropertyList::Array masked;
        std::ranges::transform(*array, std::back_inserter(masked), &withoutColors);
        return PropertyList(std::move(masked));
    }
    if (const auto *const dictionary = value.dictionary()) {
        PropertyList::Dictionary masked;
        for (const auto &entry : *dictionary) {
            masked.set(entry.key, withoutColors(entry.value));
        }
        return PropertyList(std::move(masked));
    }
    return value;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace velmar;
    DecodingNotes notes;
    std::shared_ptr<const Configuration> configuration;
    try {
        const auto document = PropertyListDocument::read(std::as_bytes(std::span(data, size)));
        configuration = Configuration::decode(document.root(), &notes);
    } catch (const LocalizedError &) {
        return 0; // Refused.
    }
    // Reading texts through a plugin must not change the configuration.
    struct Reader final : Plugin {
        void filter(std::span<std::string *const> texts) const override {
            for (std::string *const text : texts) {
                *text += '!';
            }
        }
    };
    {
        const auto registration = Plugins::registerPlugin(std::make_shared<const Reader>());
        for (const auto &[name, request] : configuration->_apiRequests()._models().models()) {
            static_cast<void>(request._body());
            static_cast<void>(request._headers());
        }
        for (const SlideItem &slide : configuration->_slides()) {
            static_cast<void>(slide.containersComposition());
            for (const ContainerItem &container : slide._containers()) {
                for (const ComponentItem &component : container._components()) {
                    static_cast<void>(component.common());
                    static_cast<void>(usedVariables(component));
                }
            }
        }
    }
    // The encoded configuration must decode to an equal one.
    const PropertyList written = configuration->encode();
    try {
        const PropertyList again = Configuration::decode(written)->encode();
        if (!(withoutColors(again) == withoutColors(written))) {
            std::abort();
        }
    } catch (const ConfigurationError &error) {
        if (error.as<ConfigurationErrors::ColorSpecification>() == nullptr) {
            throw;
        }
    }
    return 0;
}
