#pragma once

#include <Settings/ConfigurationSlot.h>

#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

namespace velmar {

/// Reads one part of the configuration. Each read sees the present configuration, so a reload needs no
/// notice. Declared as a field of the object that reads the part:
///
///     Config<bool> _isAdminModeOn{
///         [](const Configuration &c) -> decltype(auto) { return c._admin()._isAdminModeOn(); }};
///
/// The key path is any function of the configuration. A key path that returns a reference must refer into the
/// configuration and is read without a copy; a key path that returns a value, such as a text, is read by
/// copy. Reads are thread-safe; call `setOverrideValue` before the first read.
template <class T>
class Config {
public:
    /// Creates a reader of the present configuration.
    template <class KeyPath>
    requires std::is_invocable_v<const KeyPath &, const Configuration &>
    explicit Config(KeyPath keyPath)
        : read_([keyPath = std::move(keyPath)] {
              return read(keyPath, ConfigurationSlot::shared()->present());
          }) {}

    /// Returns a reader of the launch configuration, which a reload doesn't replace.
    template <class KeyPath>
    [[nodiscard]] static Config atLaunch(KeyPath keyPath) {
        Config config;
        config.read_ = [keyPath = std::move(keyPath)] {
            return read(keyPath, ConfigurationSlot::shared()->atLaunch());
        };
        return config;
    }

    /// Returns a reader of a fixed value.
    [[nodiscard]] static Config always(T value) {
        Config config;
        config.setOverrideValue(std::move(value));
        return config;
    }

    /// Returns the value, never null, which stays valid and unchanged while the caller holds it. Throws
    /// VelmarError::InternalError if there is no configuration and the value is not overridden.
    [[nodiscard]] std::shared_ptr<const T> wrappedValue() const {
        return overrideValue_ ? overrideValue_ : read_();
    }

    /// Returns a copy of the value. Use it for small values.
    [[nodiscard]] T operator()() const { return *wrappedValue(); }

    /// Replaces the configuration's value; std::nullopt restores it.
    void setOverrideValue(std::optional<T> value) {
        overrideValue_ = value ? std::make_shared<const T>(*std::move(value)) : nullptr;
    }

private:
    Config() = default;

    template <class KeyPath>
    static std::shared_ptr<const T> read(const KeyPath &keyPath,
                                         std::shared_ptr<const Configuration> configuration) {
        using Result = std::invoke_result_t<const KeyPath &, const Configuration &>;
        if constexpr (std::is_lvalue_reference_v<Result>) {
            static_assert(std::is_same_v<std::remove_cvref_t<Result>, T>, "A reference must be to a T");
            const T &value = std::invoke(keyPath, *configuration);
            return std::shared_ptr<const T>(std::move(configuration), &value);
        } else {
            return std::make_shared<const T>(std::invoke(keyPath, *configuration));
        }
    }

    std::function<std::shared_ptr<const T>()> read_;
    std::shared_ptr<const T> overrideValue_;
};

} // namespace velmar
