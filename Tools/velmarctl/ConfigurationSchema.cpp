#include <ConfigurationSchema.h>

#include <Configuration/Configuration.h>
#include <Configuration/ConfigurationVersion.h>
#include <Configuration/Description.h>

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <nlohmann/json.hpp>

#include <string>
#include <string_view>

namespace velmar {

namespace {

using nlohmann::ordered_json;
using Kind = ValueDescription::Kind;

ordered_json reference(const std::string &typeName) {
    return {{"$ref", "#/$defs/" + typeName}};
}

ordered_json schemaOf(const ValueDescription &value) {
    switch (value.kind) {
    case Kind::boolean:
        return {{"type", "boolean"}};
    case Kind::integer:
        return {{"type", "integer"}};
    case Kind::real:
        return {{"type", "number"}};
    case Kind::text: {
        ordered_json schema{{"type", "string"}};
        if (!value.pattern.empty()) {
            schema["pattern"] = "^(?:" + value.pattern + ")$";
        }
        if (!value.name.empty()) {
            schema["description"] = value.name;
        }
        return schema;
    }
    case Kind::enumeration:
        return {{"enum", value.rawStrings}};
    case Kind::list:
        return {{"type", "array"}, {"items", schemaOf(value.parts.front())}};
    case Kind::dictionary:
        return {{"type", "object"}, {"additionalProperties", schemaOf(value.parts.front())}};
    case Kind::item:
        return reference(value.name);
    case Kind::anyOf:
        break;
    }
    ordered_json alternatives = ordered_json::array();
    for (const ValueDescription &part : value.parts) {
        alternatives.push_back(schemaOf(part));
    }
    return {{"anyOf", std::move(alternatives)}};
}

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

ordered_json given(std::string_view key) {
    return {{"required", ordered_json::array({key})}};
}

/// At least one of the keys.
ordered_json anyGiven(const std::vector<ConfigCodingKey> &keys) {
    ordered_json alternatives = ordered_json::array();
    for (const ConfigCodingKey &key : keys) {
        alternatives.push_back(given(key.stringValue));
    }
    return {{"anyOf", std::move(alternatives)}};
}

ordered_json allGiven(const std::vector<ConfigCodingKey> &keys) {
    ordered_json names = ordered_json::array();
    for (const ConfigCodingKey &key : keys) {
        names.push_back(key.stringValue);
    }
    return {{"required", std::move(names)}};
}

/// What a key asks of its siblings; null where it asks nothing.
ordered_json ruleOf(std::string_view key, const Requirement &requirement) {
    switch (requirement.type) {
    case RequirementType::requiredIfSpecified:
        return {{"if", allGiven(requirement.keys)}, {"then", given(key)}};
    case RequirementType::requiredIfNotSpecified:
        return {{"if", {{"not", allGiven(requirement.keys)}}}, {"then", given(key)}};
    case RequirementType::exclude:
        return {{"if", given(key)}, {"then", {{"not", anyGiven(requirement.keys)}}}};
    case RequirementType::requiredExcluding:
        return {{"oneOf", ordered_json::array({given(key), anyGiven(requirement.keys)})}};
    case RequirementType::required:
    case RequirementType::optional:
        break;
    }
    return nullptr;
}

ordered_json schemaOfKeys(const std::vector<KeyDescription> &keys) {
    ordered_json properties = ordered_json::object();
    ordered_json names = ordered_json::array();
    ordered_json rules = ordered_json::array();
    for (const KeyDescription &key : keys) {
        ordered_json property = schemaOf(key.value);
        if (key.range) {
            property["minimum"] = key.range->lower;
            property["maximum"] = key.range->upper;
        }
        if (key.defaultValue) {
            property["default"] = jsonOf(*key.defaultValue);
        }
        properties[std::string(key.name)] = std::move(property);
        if (key.requirement.type == RequirementType::required) {
            names.push_back(key.name);
        }
        if (auto rule = ruleOf(key.name, key.requirement); !rule.is_null()) {
            rules.push_back(std::move(rule));
        }
    }
    ordered_json schema{{"type", "object"}, {"properties", std::move(properties)}};
    if (!names.empty()) {
        schema["required"] = std::move(names);
    }
    if (!rules.empty()) {
        schema["allOf"] = std::move(rules);
    }
    return schema;
}

ordered_json schemaOfKinds(const ItemDescription &item) {
    const std::string typeKey(item.typeKey);
    ordered_json names = ordered_json::array();
    ordered_json kinds = ordered_json::array();
    for (const auto &[name, typeName] : item.kinds) {
        names.push_back(name);
        kinds.push_back(
            {{"if", {{"properties", {{typeKey, {{"const", name}}}}}}}, {"then", reference(typeName)}});
    }
    return {{"type", "object"},
            {"properties", {{typeKey, {{"enum", std::move(names)}}}}},
            {"required", ordered_json::array({typeKey})},
            {"allOf", std::move(kinds)}};
}

ordered_json schemaOf(const ItemDescription &item) {
    if (item.value) {
        return schemaOf(*item.value);
    }
    return item.typeKey.empty() ? schemaOfKeys(item.keys) : schemaOfKinds(item);
}

/// The heading's anchor, as the usual renderings of Markdown make it.
std::string anchorOf(std::string_view typeName) {
    std::string anchor;
    for (const char letter : typeName) {
        if (letter != '.') {
            anchor += letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
        }
    }
    return anchor;
}

std::string codeList(const std::vector<std::string> &texts, std::string_view separator = ", ") {
    return fmt::format("`{}`", fmt::join(texts, fmt::format("`{}`", separator)));
}

std::string linkTo(const std::string &typeName) {
    return fmt::format("[{}](#{})", typeName, anchorOf(typeName));
}

std::string textOf(const ValueDescription &value) {
    switch (value.kind) {
    case Kind::boolean:
        return "boolean";
    case Kind::integer:
        return "integer";
    case Kind::real:
        return "real";
    case Kind::text:
        return value.name.empty() ? "text" : fmt::format("text ({})", value.name);
    case Kind::enumeration:
        return codeList(value.rawStrings);
    case Kind::list:
        return fmt::format("array of {}", textOf(value.parts.front()));
    case Kind::dictionary:
        return fmt::format("dictionary of {}", textOf(value.parts.front()));
    case Kind::item:
        return linkTo(value.name);
    case Kind::anyOf:
        break;
    }
    std::string text;
    for (const ValueDescription &part : value.parts) {
        text += fmt::format("{}{}", text.empty() ? "" : " or ", textOf(part));
    }
    return text;
}

std::string textOf(const Requirement &requirement) {
    std::vector<std::string> names;
    for (const ConfigCodingKey &key : requirement.keys) {
        names.emplace_back(key.stringValue);
    }
    switch (requirement.type) {
    case RequirementType::requiredIfSpecified:
        return fmt::format("required with {}", codeList(names, " and "));
    case RequirementType::requiredIfNotSpecified:
        return fmt::format("required without {}", codeList(names, " or "));
    case RequirementType::exclude:
        return fmt::format("not with {}", codeList(names, " or "));
    case RequirementType::requiredExcluding:
        return fmt::format("this or {}, exactly one", codeList(names, " or "));
    case RequirementType::required:
        return "required";
    case RequirementType::optional:
        break;
    }
    return "optional";
}

std::string defaultText(const KeyDescription &key) {
    if (!key.defaultValue) {
        return {};
    }
    const ordered_json value = jsonOf(*key.defaultValue);
    return (value.is_structured() && value.empty()) || value == "" ? "" : fmt::format("`{}`", value.dump());
}

void writeKeys(std::ostream &out, const std::vector<KeyDescription> &keys) {
    if (keys.empty()) {
        out << "No keys.\n";
        return;
    }
    out << "| Key | Type | Default | Requirement | Range |\n|---|---|---|---|---|\n";
    for (const KeyDescription &key : keys) {
        const std::string range =
            key.range ? fmt::format("{} to {}", key.range->lower, key.range->upper) : "";
        out << fmt::format("| `{}` | {} | {} | {} | {} |\n", key.name, textOf(key.value), defaultText(key),
                           textOf(key.requirement), range);
    }
}

} // namespace

void writeSchema(std::ostream &out) {
    const Descriptions descriptions = Configuration::describe();
    ordered_json schema{{"$schema", "https://json-schema.org/draft/2020-12/schema"},
                        {"title", "Configuration of Velmar"},
                        {"description", ConfigurationVersion::version}};
    schema.update(reference(std::string(Configuration::typeName)));
    for (const std::string &name : descriptions.order()) {
        schema["$defs"][name] = schemaOf(descriptions.items().at(name));
    }
    out << schema.dump(2) << '\n';
}

void writeReference(std::ostream &out) {
    const Descriptions descriptions = Configuration::describe();
    out << "# The configuration file\n\n"
           "A property list (XML or binary) whose root is the dictionary `Configuration`. Made by "
           "`velmarctl reference`.\n\n"
           "A key without a default has no value where it is absent, or an empty one. The default of a key "
           "that is required stands where its whole item is absent. Keys that are not listed are ignored.\n";
    for (const std::string &name : descriptions.order()) {
        const ItemDescription &item = descriptions.items().at(name);
        out << fmt::format("\n## {}\n\n", name);
        if (item.value) {
            out << fmt::format("Stands for: {}.\n", textOf(*item.value));
        } else if (item.typeKey.empty()) {
            writeKeys(out, item.keys);
        } else {
            out << fmt::format(
                "The key `{0}` is required and tells the kind:\n\n| `{0}` | Keys |\n|---|---|\n",
                item.typeKey);
            for (const auto &[kind, typeName] : item.kinds) {
                out << fmt::format("| `{}` | {} |\n", kind, linkTo(typeName));
            }
        }
    }
}

} // namespace velmar
