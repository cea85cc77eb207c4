#include "PropertyListChecks.h"

using namespace velmar;

/// What reads as XML is written in both forms and reads back equal.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size) {
    const auto document = readIfValid({bytes, size});
    if (!document || document->form() != PropertyListDocument::Form::Xml) {
        return 0;
    }
    require(document->lines().lineOf(document->root().offset()) >= 1);
    const PropertyList value(document->root());
    require(PropertyList::read(value.xml()) == value);
    require(PropertyList::read(value.binary()) == value);
    return 0;
}
