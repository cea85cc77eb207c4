#include <Foundation/PropertyListValue.h>

#include <cmath>
#include <limits>
#include <memory>
#include <new>
#include <utility>

namespace velmar {

PropertyList::PropertyList() noexcept : dictionary_(), kind_(Kind::Dictionary) {}
PropertyList::PropertyList(bool value) noexcept : boolean_(value), kind_(Kind::Boolean) {}
PropertyList::PropertyList(std::int64_t value) noexcept : integer_(value), kind_(Kind::Integer) {}
PropertyList::PropertyList(double value) noexcept : real_(value), kind_(Kind::Real) {}
PropertyList::PropertyList(std::string value) noexcept : string_(std::move(value)), kind_(Kind::String) {}
PropertyList::PropertyList(std::string_view value) : string_(value), kind_(Kind::String) {}
PropertyList::PropertyList(const char *value) : string_(value), kind_(Kind::String) {}
PropertyList::PropertyList(Data value) noexcept : data_(std::move(value)), kind_(Kind::Data) {}
PropertyList::PropertyList(Date value) noexcept : date_(value), kind_(Kind::Date) {}
PropertyList::PropertyList(Array value) noexcept : array_(std::move(value)), kind_(Kind::Array) {}
PropertyList::PropertyList(Dictionary value) noexcept
    : dictionary_(std::move(value)), kind_(Kind::Dictionary) {}

PropertyList::PropertyList(std::uint64_t value) noexcept
    : unsignedInteger_(value), kind_(Kind::UnsignedInteger) {
    if (value <= static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) {
        integer_ = static_cast<std::int64_t>(value);
        kind_ = Kind::Integer;
    }
}

PropertyListValue::PropertyListValue(std::uint64_t value) noexcept
    : unsignedInteger_(value), kind_(Kind::UnsignedInteger) {
    if (value <= static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) {
        integer_ = static_cast<std::int64_t>(value);
        kind_ = Kind::Integer;
    }
}

// Recursive: the depth of a document is limited.
PropertyList::PropertyList(const PropertyListValue &value) : PropertyList() {
    switch (value.kind()) {
    case Kind::Boolean:
        *this = *value.boolean();
        break;
    case Kind::Integer:
        *this = *value.integer();
        break;
    case Kind::UnsignedInteger:
        *this = *value.unsignedInteger();
        break;
    case Kind::Real:
        *this = *value.real();
        break;
    case Kind::String:
        *this = *value.string();
        break;
    case Kind::Data:
        *this = Data{{value.data()->begin(), value.data()->end()}};
        break;
    case Kind::Date:
        *this = *value.date();
        break;
    case Kind::Array:
        *this = Array(value.elements().begin(), value.elements().end());
        break;
    case Kind::Dictionary: {
        std::vector<Dictionary::Entry> entries;
        entries.reserve(value.entries().size());
        for (const PropertyListValue::Entry &entry : value.entries()) {
            entries.push_back({std::string(entry.key.text()), PropertyList(entry.value)});
        }
        *this = Dictionary(std::move(entries));
        break;
    }
    }
}

PropertyList::PropertyList(const PropertyList &other) {
    construct(other);
}

PropertyList::PropertyList(PropertyList &&other) noexcept {
    construct(std::move(other));
}

PropertyList &PropertyList::operator=(const PropertyList &other) {
    return *this = PropertyList(other);
}

PropertyList &PropertyList::operator=(PropertyList &&other) noexcept {
    if (this != &other) {
        // `other` may be a part of this value.
        PropertyList replaced(std::move(*this));
        destroy();
        construct(std::move(other));
    }
    return *this;
}

PropertyList::~PropertyList() {
    destroy();
}

template <class Other>
void PropertyList::construct(Other &&other) {
    kind_ = other.kind_;
    switch (kind_) {
    case Kind::Boolean:
        boolean_ = other.boolean_;
        break;
    case Kind::Integer:
        integer_ = other.integer_;
        break;
    case Kind::UnsignedInteger:
        unsignedInteger_ = other.unsignedInteger_;
        break;
    case Kind::Real:
        real_ = other.real_;
        break;
    case Kind::Date:
        date_ = other.date_;
        break;
    case Kind::String:
        std::construct_at(&string_, std::forward<Other>(other).string_);
        break;
    case Kind::Data:
        std::construct_at(&data_, std::forward<Other>(other).data_);
        break;
    case Kind::Array:
        std::construct_at(&array_, std::forward<Other>(other).array_);
        break;
    case Kind::Dictionary:
        std::construct_at(&dictionary_, std::forward<Other>(other).dictionary_);
        break;
    }
}

void PropertyList::destroy() noexcept {
    switch (kind_) {
    case Kind::Boolean:
    case Kind::Integer:
    case Kind::UnsignedInteger:
    case Kind::Real:
    case Kind::Date:
        break;
    case Kind::String:
        std::destroy_at(&string_);
        break;
    case Kind::Data:
        std::destroy_at(&data_);
        break;
    case Kind::Array:
        std::destroy_at(&array_);
        break;
    case Kind::Dictionary:
        std::destroy_at(&dictionary_);
        break;
    }
}

const bool *PropertyList::boolean() const noexcept {
    return kind_ == Kind::Boolean ? &boolean_ : nullptr;
}
const std::int64_t *PropertyList::integer() const noexcept {
    return kind_ == Kind::Integer ? &integer_ : nullptr;
}
const std::uint64_t *PropertyList::unsignedInteger() const noexcept {
    return kind_ == Kind::UnsignedInteger ? &unsignedInteger_ : nullptr;
}
const double *PropertyList::real() const noexcept {
    return kind_ == Kind::Real ? &real_ : nullptr;
}
const std::string *PropertyList::string() const noexcept {
    return kind_ == Kind::String ? &string_ : nullptr;
}
const PropertyList::Data *PropertyList::data() const noexcept {
    return kind_ == Kind::Data ? &data_ : nullptr;
}
const PropertyList::Date *PropertyList::date() const noexcept {
    return kind_ == Kind::Date ? &date_ : nullptr;
}
const PropertyList::Array *PropertyList::array() const noexcept {
    return kind_ == Kind::Array ? &array_ : nullptr;
}
PropertyList::Array *PropertyList::array() noexcept {
    return kind_ == Kind::Array ? &array_ : nullptr;
}
const PropertyList::Dictionary *PropertyList::dictionary() const noexcept {
    return kind_ == Kind::Dictionary ? &dictionary_ : nullptr;
}
PropertyList::Dictionary *PropertyList::dictionary() noexcept {
    return kind_ == Kind::Dictionary ? &dictionary_ : nullptr;
}

bool PropertyList::operator==(const PropertyList &other) const {
    if (kind_ != other.kind_) {
        return false;
    }
    switch (kind_) {
    case Kind::Boolean:
        return boolean_ == other.boolean_;
    case Kind::Integer:
        return integer_ == other.integer_;
    case Kind::UnsignedInteger:
        return unsignedInteger_ == other.unsignedInteger_;
    case Kind::Real:
        return real_ == other.real_ || (std::isnan(real_) && std::isnan(other.real_));
    case Kind::Date:
        return date_ == other.date_;
    case Kind::String:
        return string_ == other.string_;
    case Kind::Data:
        return data_ == other.data_;
    case Kind::Array:
        return array_ == other.array_;
    case Kind::Dictionary:
        return dictionary_ == other.dictionary_;
    }
    return false;
}

} // namespace velmar
