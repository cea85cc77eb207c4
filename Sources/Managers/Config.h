#pragma once

#include <Managers/AppManager.h>

#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

namespace velmar {

/// Reads one part of the configuration, at each reading the one of that moment: after a reload every holder
/// sees the new configuration without being told. An owner declares with it what it reads:
///
///     Config<bool> _isAdminModeOn{
///         [](const Configuration &c) -> decltype(auto) { return c._admin()._isAdminModeOn(); }};
///
/// The key path is any function of the configuration. One that returns a reference must refer into the
/// configuration, and is read without a copy; of one that returns a value, as texts are read, the result is
/// kept for the reader. Any thread reads; `setOverrideValue` belongs before the first reading.
template <class T>
class Config {
public:
    template <class KeyPath>
    requires std::is_invocable_v<const KeyPath &, const Configuration &>
    explicit Config(KeyPath keyPath)
        : keyPath_([keyPath = std::move(keyPath)](std::shared_ptr<const Configuration> configuration) {
              return read(keyPath, std::move(configuration));
          }) {}

    /// Reads this value and no configuration.
    [[nodiscard]] static Config always(T value) {
        Config config;
        config.setOverrideValue(std::move(value));
        return config;
    }

    /// The value, never null; it stays valid and unchanged while it is held, whatever is reloaded meanwhile.
    /// Throws VelmarError::InternalError before there is an AppManager, unless the value is overridden.
    [[nodiscard]] std::shared_ptr<const T> wrappedValue() const {
        return overrideValue_ ? overrideValue_ : keyPath_(AppManager::shared()->configuration());
    }

    /// A copy of the value, for the small ones.
    [[nodiscard]] T operator()() const { return *wrappedValue(); }

    /// Stands in place of the configuration's value; none puts the configuration's back.
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

    std::function<std::shared_ptr<const T>(std::shared_ptr<const Configuration>)> keyPath_;
    std::shared_ptr<const T> overrideValue_;
};

} // namespace velmar
