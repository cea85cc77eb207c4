#pragma once

#include <memory>
#include <span>
#include <string>

namespace velmar {

/// The application's filter of the values that holders hand out: it may, for instance, replace the variables
/// in a text. It sees values when they are read and never while a file is decoded, checked or encoded.
class Plugin {
public:
    virtual ~Plugin() = default;

    /// Replaces the texts of one value, all or none of them, so that they belong together. Any thread; must
    /// not throw.
    virtual void filter(std::span<std::string *const> texts) const = 0;
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
};

} // namespace velmar
