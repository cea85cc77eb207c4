#pragma once

#include <Configuration/ClosedRange.h>
#include <Configuration/Requirement.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>

#include <cstdint>
#include <optional>
#include <utility>

namespace velmar {

/// The accepted forms of an array of texts.
enum class ArrayCodingStrategy {
    customStringConvertible, ///< All strings, all integers or all reals; converted to text.
};

/// A value shared by the copies of a holder. Copying and destroying a holder doesn't need the type of the
/// value.
class SharedValue : public boost::intrusive_ref_counter<SharedValue> {
public:
    virtual ~SharedValue() = default;
};
using SharedValuePointer = boost::intrusive_ptr<SharedValue>;

template <class T>
class SharedValueOf final : public SharedValue {
public:
    template <class Initial>
    explicit SharedValueOf(Initial &&initial) : value(std::forward<Initial>(initial)) {}
    T value;
};

/// The declaration of a key. One instance serves all copies of a default instance.
struct KeyDeclaration : boost::intrusive_ref_counter<KeyDeclaration> {
    KeyDeclaration(ConfigCodingKey key, const Requirement &need, std::optional<ClosedRange> bounds,
                   std::optional<ArrayCodingStrategy> arrays);
    KeyDeclaration(const KeyDeclaration &) = delete;
    KeyDeclaration &operator=(const KeyDeclaration &) = delete;
    virtual ~KeyDeclaration();

    ConfigCodingKey name;
    Requirement requirement;
    std::optional<ClosedRange> range;
    std::optional<ArrayCodingStrategy> strategy;
};

/// The part of a holder that doesn't depend on the type of its value: the declaration and two flags.
class KeyHolder {
public:
    [[nodiscard]] bool wasGivenValueWhileDecoding() const { return wasGivenValueWhileDecoding_; }
    [[nodiscard]] bool valueWasSet() const { return valueWasSet_; }
    [[nodiscard]] const ConfigCodingKey &name() const { return declaration_->name; }
    [[nodiscard]] const Requirement &requirement() const { return declaration_->requirement; }
    [[nodiscard]] const std::optional<ClosedRange> &range() const { return declaration_->range; }
    [[nodiscard]] const std::optional<ArrayCodingStrategy> &arrayCodingStrategy() const {
        return declaration_->strategy;
    }

protected:
    explicit KeyHolder(const KeyDeclaration *declaration) : declaration_(declaration) {}

    [[nodiscard]] const KeyDeclaration &declaration() const { return *declaration_; }
    void noteSet(bool isSet) { valueWasSet_ = isSet; }
    void noteDecoded() { valueWasSet_ = wasGivenValueWhileDecoding_ = true; }

private:
    boost::intrusive_ptr<const KeyDeclaration> declaration_;
    bool wasGivenValueWhileDecoding_ = false;
    bool valueWasSet_ = false;
};

/// A holder and its stored value: a small value, or a pointer to a SharedValue.
template <class Held>
class KeyHolderOf : public KeyHolder {
protected:
    KeyHolderOf(Held defaultValue, ConfigCodingKey name, const Requirement &requirement,
                std::optional<ClosedRange> range = {}, std::optional<ArrayCodingStrategy> strategy = {});

    [[nodiscard]] const Held &defaultHeld() const {
        return static_cast<const Declaration &>(declaration()).defaultValue;
    }

    Held value_; ///< nullptr: a value that is empty by default.

private:
    struct Declaration final : KeyDeclaration {
        Declaration(Held value, ConfigCodingKey key, const Requirement &need,
                    std::optional<ClosedRange> bounds, std::optional<ArrayCodingStrategy> arrays)
            : KeyDeclaration(key, need, bounds, arrays), defaultValue(std::move(value)) {}
        Held defaultValue;
    };
};

// Not inline, so that the holders of the usual types are compiled once.
template <class Held>
KeyHolderOf<Held>::KeyHolderOf(Held defaultValue, ConfigCodingKey name, const Requirement &requirement,
                               std::optional<ClosedRange> range, std::optional<ArrayCodingStrategy> strategy)
    : KeyHolder(new Declaration(std::move(defaultValue), name, requirement, range, strategy)),
      value_(defaultHeld()) {}

extern template class KeyHolderOf<SharedValuePointer>;
extern template class KeyHolderOf<bool>;
extern template class KeyHolderOf<std::int64_t>;
extern template class KeyHolderOf<double>;
extern template class KeyHolderOf<std::optional<std::int64_t>>;
extern template class KeyHolderOf<std::optional<double>>;

} // namespace velmar
