#include <Support/GeneratedConfiguration.h>

#include <Configuration/Configuration.h>

#include <algorithm>
#include <map>
#include <set>

namespace velmar {

namespace {

using Kind = ValueDescription::Kind;

constexpr int deepest = 12;                // Nesting of optional items.
constexpr std::string_view model = "Base"; // Name of a model in every book.
constexpr std::string_view variable = "SOME_VARIABLE";

/// Returns whether the key is never given, because its value depends on other keys beyond its requirement.
bool isLeftOut(std::string_view typeName, std::string_view key) {
    return typeName == "ContainerItem" && (key == "IsLarge" || key == "WidthRatio");
}

/// Adds keys to `given` or removes them, so that it meets the requirement of each key.
void meetRequirements(const std::vector<KeyDescription> &keys, std::set<std::string_view> &given) {
    using enum RequirementType;
    for (const KeyDescription &key : keys) {
        const auto isGiven = [&](const ConfigCodingKey &other) { return given.contains(other.stringValue); };
        const bool all = std::ranges::all_of(key.requirement.keys, isGiven);
        const bool any = std::ranges::any_of(key.requirement.keys, isGiven);
        const RequirementType type = key.requirement.type;
        if (type == required || (type == requiredIfSpecified && all) ||
            (type == requiredIfNotSpecified && !all) || (type == requiredExcluding && !any)) {
            given.insert(key.name);
        } else if ((type == exclude || type == requiredExcluding) && any) {
            given.erase(key.name);
        }
    }
}

/// Sets a value in nested dictionaries of the file. Makes missing dictionaries only if the first one is
/// missing; otherwise a missing one is intended, and nothing is set.
void put(PropertyList &file, std::initializer_list<std::string_view> keys, PropertyList value) {
    const bool isNew = file.dictionary()->find(*keys.begin()) == nullptr;
    PropertyList *place = &file;
    for (const std::string_view key : keys) {
        PropertyList::Dictionary *const dictionary = place->dictionary();
        if (dictionary == nullptr) {
            return;
        }
        if (dictionary->find(key) == nullptr) {
            if (!isNew && key != *std::prev(keys.end())) {
                return;
            }
            dictionary->set(key, PropertyList());
        }
        place = dictionary->find(key);
    }
    *place = std::move(value);
}

} // namespace

GeneratedConfiguration::GeneratedConfiguration(std::uint32_t seed)
    : descriptions_(Configuration::describe()), random_(seed) {}

bool GeneratedConfiguration::chance(double probability) {
    return std::uniform_real_distribution<double>(0, 1)(random_) < probability;
}

std::size_t GeneratedConfiguration::below(std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
}

PropertyList GeneratedConfiguration::file() {
    probability_ = 0.4;
    PropertyList file = item(Configuration::typeName, 0.9, "Slides");
    if (PropertyList *const requests = file.dictionary()->find("APIRequests")) {
        requests->dictionary()->set("Models", PropertyList());
    }
    addWhatIsReferredTo(file);
    return file;
}

void GeneratedConfiguration::addWhatIsReferredTo(PropertyList &file) {
    put(file, {"ColorStyles", model}, leastItem("ColorItem"));
    put(file, {"FontStyles", model}, leastItem("FontItem"));
    put(file, {"APIRequests", "Models", model}, leastItem("APIRequestItem"));
    put(file, {"General", "Variables", variable}, PropertyList("some value"));
    PropertyList::Dictionary &root = *file.dictionary();
    if (root.find("MenuBarSlide") == nullptr) {
        root.set("MenuBarSlide", leastItem("SlideItem"));
    }
    const PropertyList *const slides = root.find("Slides");
    if (slides == nullptr || (slides->array() != nullptr && slides->array()->empty())) {
        root.set("Slides", PropertyList(PropertyList::Array{leastItem("SlideItem")}));
    }
}

PropertyList GeneratedConfiguration::leastItem(std::string_view typeName, std::string_view also) {
    const double probability = std::exchange(probability_, 0);
    PropertyList made = item(typeName, 0, also);
    probability_ = probability;
    return made;
}

PropertyList GeneratedConfiguration::item(std::string_view typeName, double probability,
                                          std::string_view also) {
    const ItemDescription &description = descriptions_.items().at(std::string(typeName));
    if (description.value) {
        return value(*description.value);
    }
    if (!description.typeKey.empty()) {
        const auto &[kind, kindName] =
            description.kinds[depth_ > deepest ? 0 : below(description.kinds.size())];
        PropertyList made = item(kindName, probability, also);
        made.dictionary()->set(description.typeKey, PropertyList(kind));
        return made;
    }
    ++depth_;
    std::set<std::string_view> given;
    for (const KeyDescription &key : description.keys) {
        if (depth_ <= deepest && chance(probability) && !isLeftOut(typeName, key.name)) {
            given.insert(key.name);
        }
    }
    if (!also.empty()) {
        given.insert(also);
    }
    // Twice, because meeting one requirement may change another one.
    meetRequirements(description.keys, given);
    meetRequirements(description.keys, given);
    PropertyList::Dictionary made;
    for (const KeyDescription &key : description.keys) {
        if (given.contains(key.name)) {
            made.set(key.name, value(typeName, key));
        }
    }
    --depth_;
    return PropertyList(std::move(made));
}

PropertyList GeneratedConfiguration::value(std::string_view typeName, const KeyDescription &key) {
    if (key.name == "Style" || key.name == "ParentRequest") {
        if (key.value.kind == Kind::text) {
            return PropertyList(model);
        }
    }
    if (typeName == "ActionItem.NavigateToSlide" && key.name == "Index") {
        return PropertyList(0);
    }
    if (key.range) {
        return PropertyList(chance(0.5) ? key.range->lower : key.range->upper);
    }
    return value(key.value);
}

PropertyList GeneratedConfiguration::value(const ValueDescription &description) {
    const auto count = [&] { return depth_ > deepest || probability_ == 0 ? 0 : below(3); };
    switch (description.kind) {
    case Kind::boolean:
        return PropertyList(chance(0.5));
    case Kind::integer:
        return PropertyList(static_cast<std::int64_t>(below(100)));
    case Kind::real:
        return PropertyList(static_cast<double>(below(1000)) / 8);
    case Kind::text:
        return PropertyList(text(description));
    case Kind::enumeration:
        return PropertyList(description.rawStrings[below(description.rawStrings.size())]);
    case Kind::list: {
        PropertyList::Array array;
        for (std::size_t left = count(); left > 0; --left) {
            array.push_back(value(description.parts.front()));
        }
        return PropertyList(std::move(array));
    }
    case Kind::dictionary: {
        PropertyList::Dictionary dictionary;
        for (std::size_t left = count(); left > 0; --left) {
            dictionary.set("KEY" + std::to_string(left), value(description.parts.front()));
        }
        return PropertyList(std::move(dictionary));
    }
    case Kind::item:
        return item(description.name, probability_);
    case Kind::anyOf:
        break;
    }
    return value(description.parts[below(depth_ > deepest ? 1 : description.parts.size())]);
}

std::string GeneratedConfiguration::text(const ValueDescription &description) {
    static const std::map<std::string_view, std::vector<std::string>> texts = {
        {"name of a model", {std::string(model)}},
        {"URL", {"file:///usr/share/picture.png", "https://example.com/a?b=c", "a picture.png"}},
        {"regular expression", {".*", "[a-z]+(x|y)", "^$"}},
        {"condition", {"SOME_VARIABLE == \"x\"", "( SOME_VARIABLE != USER_NAME ) && SOME_VARIABLE"}},
        {"trigger", {"Launch", "Termination", "Update(SOME_VARIABLE)", "AppLaunch(org\\..*)", "Custom(go)"}},
        {"color", {"#AABBCC", "#10203040"}},
        {"", {"a text", "", "${SOME_VARIABLE} & \u00e9 <x>", "two\nlines", "\U0001F600"}}};
    const auto named = texts.find(description.name);
    const auto &choice =
        named == texts.end() ? texts.at(description.pattern.empty() ? "" : "color") : named->second;
    return choice[below(choice.size())];
}

} // namespace velmar
