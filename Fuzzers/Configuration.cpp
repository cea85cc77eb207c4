// Whatever the bytes are, they are a configuration or are refused with one of the program's errors.
#include <Configuration/Configuration.h>
#include <Foundation/LocalizedError.h>
#include <Foundation/PropertyList.h>

#include <cstddef>
#include <cstdint>
#include <span>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace velmar;
    DecodingNotes notes;
    try {
        const auto document = PropertyList::read(std::as_bytes(std::span(data, size)));
        const auto configuration = Configuration::decode(document.value, &notes);
        // What was decoded can be written, and that is a configuration again.
        static_cast<void>(Configuration::decode(configuration->encode()));
    } catch (const LocalizedError &) {
        // Refused.
    }
    return 0;
}
