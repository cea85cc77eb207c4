#pragma once

#include <Configuration/CodingPath.h>
#include <Foundation/PropertyListValue.h>

namespace velmar {

/// The place of a value in the file that it was decoded from.
struct ValuePlace {
    const PropertyListValue &value; ///< The form in the file, such as the name of a model for an item.
    const CodingPath &path;
};

/// A value of a configuration and its place, as handed to a ValueVisitor. Valid during that call.
class VisitedValue {
public:
    template <class T>
    VisitedValue(const T &value, const ValuePlace &place)
        : value_(&value), type_(&identity<T>), place_(place) {}

    /// Returns the value if exactly T is its type, otherwise nullptr.
    template <class T>
    [[nodiscard]] const T *as() const {
        return type_ == &identity<T> ? static_cast<const T *>(value_) : nullptr;
    }

    [[nodiscard]] const ValuePlace &place() const { return place_; }

private:
    /// The address identifies the type.
    template <class T>
    static constexpr char identity = 0;

    const void *value_;
    const char *type_;
    ValuePlace place_;
};

/// Receives each value of a configuration from Configuration::visitValues().
class ValueVisitor {
public:
    virtual ~ValueVisitor() = default;

    virtual void visit(const VisitedValue &value) = 0;

protected:
    ValueVisitor() = default;
    ValueVisitor(const ValueVisitor &) = default;
    ValueVisitor &operator=(const ValueVisitor &) = default;
};

} // namespace velmar
