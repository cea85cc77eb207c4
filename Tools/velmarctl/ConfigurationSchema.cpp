#include <ConfigurationSchema.h>

#include <PropertyListJSON.h>

#include <Configuration/Configuration.h>
#include <Configuration/ConfigurationVersion.h>
#include <Configuration/Description.h>

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

ordered_json given(std::string_view key) {
    return {{"required", ordered_json::array({key})}};
}

/// Requires at least one of the keys.
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

/// Returns the constraint of a key on its siblings; null if there is none.
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

} // namespace velmar
