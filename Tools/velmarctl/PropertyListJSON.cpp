#include <PropertyListJSON.h>

#include <Foundation/PropertyList.h>

#include <nlohmann/json.hpp>

namespace velmar {

using nlohmann::ordered_json;

ordered_json jsonOf(const PropertyList &value) {
    if (const auto *array = value.array()) {
        ordered_json list = ordered_json::array();
        for (const PropertyList &element : *array) {
            list.push_back(jsonOf(element));
        }
        return list;
    }
    if (const auto *dictionary = value.dictionary()) {
        ordered_json object = ordered_json::object();
        for (const auto &entry : *dictionary) {
            object[entry.key] = jsonOf(entry.value);
        }
        return object;
    }
    if (const auto *text = value.string()) {
        return *text;
    }
    if (const auto *boolean = value.boolean()) {
        return *boolean;
    }
    if (const auto *integer = value.integer()) {
        return *integer;
    }
    return *value.real();
}

} // namespace velmar
