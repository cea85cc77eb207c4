#include "PropertyListChecks.h"

#include <cmath>

using namespace velmar;

static bool hasWholeDates(const PropertyList &value) {
    if (const PropertyList::Date *date = value.date()) {
        return std::floor(date->secondsSinceReferenceDate) == date->secondsSinceReferenceDate;
    }
    if (const PropertyList::Array *array = value.array()) {
        for (const PropertyList &element : *array) {
            if (!hasWholeDates(element)) {
                return false;
            }
        }
    }
    if (const PropertyList::Dictionary *dictionary = value.dictionary()) {
        for (const auto &entry : *dictionary) {
            if (!hasWholeDates(entry.value)) {
                return false;
            }
        }
    }
    return true;
}

/// Fuzzes the binary reader: a valid input reads back equal after writing as binary, and as XML if XML can
/// represent it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size) {
    const auto document = readIfValid({bytes, size});
    if (!document || document->form() != PropertyListDocument::Form::Binary) {
        return 0;
    }
    const PropertyList value(document->root());
    const auto binary = value.binary();
    require(PropertyList::read(binary).binary() == binary);
    require(PropertyList::read(binary) == value);
    std::string xml;
    try {
        xml = value.xml();
    } catch (const PropertyListError &) {
        return 0;
    }
    require(!hasWholeDates(value) || PropertyList::read(xml) == value);
    return 0;
}
