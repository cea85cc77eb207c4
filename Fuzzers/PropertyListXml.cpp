#include "PropertyListChecks.h"

using namespace velmar;

/// What reads as XML is written in both forms and reads back equal.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size) {
    const auto document = readIfValid({bytes, size});
    if (!document || document->form != PropertyList::Document::Form::Xml) {
        return 0;
    }
    require(document->lineOf(document->value.offset()) >= 1);
    require(PropertyList::read(document->value.xml()).value == document->value);
    require(PropertyList::read(document->value.binary()).value == document->value);
    return 0;
}
