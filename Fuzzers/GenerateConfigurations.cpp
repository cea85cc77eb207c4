// generate-configurations DIRECTORY COUNT [--damaged]: writes generated configurations, as seeds for the
// fuzzer and as input of tests. A damaged configuration has one random replaced value, or lacks one key.
#include <Support/GeneratedConfiguration.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

using velmar::PropertyList;

/// Collects all values of a file below its root.
void collect(PropertyList &value, std::vector<PropertyList *> &values) {
    if (PropertyList::Array *const array = value.array()) {
        for (PropertyList &element : *array) {
            values.push_back(&element);
            collect(element, values);
        }
    }
    if (PropertyList::Dictionary *const dictionary = value.dictionary()) {
        for (const auto &entry : *dictionary) {
            PropertyList *const held = dictionary->find(entry.key);
            values.push_back(held);
            collect(*held, values);
        }
    }
}

void damage(PropertyList &file, std::mt19937 &random) {
    std::vector<PropertyList *> values;
    collect(file, values);
    PropertyList &value = *values[random() % values.size()];
    PropertyList::Dictionary *const dictionary = value.dictionary();
    if (dictionary != nullptr && !dictionary->empty()) {
        const std::size_t left = random() % dictionary->size();
        PropertyList::Dictionary without;
        for (const auto &entry : *dictionary) {
            if (&entry != dictionary->begin() + left) {
                without.set(entry.key, entry.value);
            }
        }
        value = PropertyList(std::move(without));
        return;
    }
    const PropertyList others[] = {true,
                                   -3,
                                   1.5,
                                   1e300,
                                   "text",
                                   "${X} ${",
                                   "#GGGGGG",
                                   "a ==",
                                   "Update()",
                                   "[",
                                   PropertyList::Date{0},
                                   PropertyList::Data{},
                                   PropertyList::Array{},
                                   PropertyList()};
    value = others[random() % std::size(others)];
}

} // namespace

int main(int argumentCount, char **arguments) {
    const bool areDamaged = argumentCount == 4 && std::string_view(arguments[3]) == "--damaged";
    if (argumentCount != 3 && !areDamaged) {
        std::cerr << "usage: generate-configurations DIRECTORY COUNT [--damaged]\n";
        return 2;
    }
    const std::filesystem::path directory(arguments[1]);
    std::filesystem::create_directories(directory);
    const unsigned long count = std::stoul(arguments[2]);
    std::mt19937 random(1);
    for (std::uint32_t seed = 0; seed < count; ++seed) {
        PropertyList file = velmar::GeneratedConfiguration(seed).file();
        if (areDamaged) {
            damage(file, random);
        }
        std::ofstream(directory /
                      ((areDamaged ? "damaged-" : "generated-") + std::to_string(seed) + ".plist"))
            << file.xml();
    }
    return 0;
}
