#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

namespace velmar {

/// The application's filter of the values that holders hand out: it may, for instance, replace the variables
/// in a text. It sees values when they are read and never while a file is decoded, checked or encoded.
class Plugin {
public:
    virtual ~Plugin() = default;

    /// The value to use in place of the one given. Any thread; must not throw.
    [[nodiscard]] virtual std::string value(std::string text) const = 0;
};

/// The plugins of the process, in the order of registration: each receives the value of the one before it.
class Plugins {
public:
    /// Ends the registration of one plugin when it is destroyed.
    class [[nodiscard]] Registration {
    public:
        explicit Registration(std::shared_ptr<const Plugin> plugin) : plugin_(std::move(plugin)) {}
        Registration(Registration &&) noexcept = default;
        Registration &operator=(Registration &&) = delete;
        ~Registration();

    private:
        std::shared_ptr<const Plugin> plugin_;
    };

    static Registration registerPlugin(std::shared_ptr<const Plugin> plugin);

    static std::string apply(std::string text);
};

/// Whether values of a type pass through the plugins: texts and collections of texts do, nothing else.
template <class T>
struct IsPluggable : std::false_type {};
template <>
struct IsPluggable<std::string> : std::true_type {};
template <class T>
struct IsPluggable<std::optional<T>> : IsPluggable<T> {};
template <class T>
struct IsPluggable<std::vector<T>> : IsPluggable<T> {};
template <class T>
struct IsPluggable<std::map<std::string, T>> : IsPluggable<T> {};

inline std::string plugged(std::string text) {
    return Plugins::apply(std::move(text));
}

template <class T>
std::optional<T> plugged(std::optional<T> value) {
    return value ? std::optional<T>(plugged(*std::move(value))) : std::nullopt;
}

template <class T>
std::vector<T> plugged(std::vector<T> values) {
    for (T &value : values) {
        value = plugged(std::move(value));
    }
    return values;
}

template <class T>
std::map<std::string, T> plugged(std::map<std::string, T> values) {
    for (auto &[key, value] : values) {
        value = plugged(std::move(value));
    }
    return values;
}

} // namespace velmar
