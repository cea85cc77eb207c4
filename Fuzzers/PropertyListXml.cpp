#include "PropertyListChecks.h"

using namespace velmar;

/// Fuzzes the XML reader: a valid input reads back equal after writing in both forms.
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
