#include <ConfigurationReference.h>

#include <PropertyListJSON.h>

#include <Configuration/Configuration.h>
#include <Configuration/Description.h>

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <nlohmann/json.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace velmar {

namespace {

using Kind = ValueDescription::Kind;

/// Returns the anchor of a heading, as common Markdown renderers generate it.
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
    const nlohmann::ordered_json value = jsonOf(*key.defaultValue);
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
