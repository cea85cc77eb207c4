#include <Configuration/BodyItem.h>

#include <Configuration/BodyItemCoding.h>

#include <cmath>
#include <type_traits>
#include <utility>

namespace velmar {

namespace {

using GroupKind = ConfigurationErrors::RequestBodyGroup::Group;

template <class Group>
Group &groupOf(BodyItem &item, GroupKind kind) {
    if (auto *const group = std::get_if<Group>(&item.value)) {
        return *group;
    }
    throw ConfigurationError(ConfigurationErrors::RequestBodyGroup{kind});
}

} // namespace

void BodyItem::add(BodyItem item, std::string key) {
    groupOf<Dictionary>(*this, GroupKind::dictionary).insert_or_assign(std::move(key), std::move(item));
}

void BodyItem::append(BodyItem item) {
    groupOf<Array>(*this, GroupKind::array).push_back(std::move(item));
}

BodyItem Decodable<BodyItem>::decode(const Decoding &decoding) {
    const PropertyListValue &value = decoding.value;
    if (value.string()) {
        return {Decodable<std::string>::decode(decoding)};
    }
    if (const auto boolean = value.boolean()) {
        return {*boolean};
    }
    if (const auto integer = value.integer()) {
        return {*integer};
    }
    const auto real = value.real();
    if (value.unsignedInteger() || (real && std::isfinite(*real))) {
        return {Decodable<double>::decode(decoding)};
    }
    if (value.isArray()) {
        return {Decodable<BodyItem::Array>::decode(decoding)};
    }
    if (value.isDictionary()) {
        return {Decodable<BodyItem::Dictionary>::decode(decoding)};
    }
    throw ConfigurationError(ConfigurationErrors::RequestBodyCoding{decoding.path.text()});
}

std::optional<PropertyList> Decodable<BodyItem>::encode(const BodyItem &body) {
    return std::visit(
        [](const auto &value) { return Decodable<std::remove_cvref_t<decltype(value)>>::encode(value); },
        body.value);
}

ValueDescription Decodable<BodyItem>::describe(Descriptions &items) {
    using Kind = ValueDescription::Kind;
    const ValueDescription body = ValueDescription::item(BodyItem::typeName);
    if (ItemDescription *const place = items.add(BodyItem::typeName)) {
        place->value = ValueDescription::of(
            Kind::anyOf,
            {ValueDescription::text(), ValueDescription::of(Kind::boolean),
             ValueDescription::of(Kind::integer), ValueDescription::of(Kind::real),
             ValueDescription::of(Kind::list, {body}), ValueDescription::of(Kind::dictionary, {body})});
    }
    return body;
}

} // namespace velmar
