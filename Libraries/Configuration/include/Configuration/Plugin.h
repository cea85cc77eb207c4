#pragma once

#include <memory>
#include <span>
#include <string>

namespace velmar {

/// A filter for values read from holders, such as one that replaces the variables in a text. Filters don't
/// apply while a file is decoded, checked or encoded.
class Plugin {
public:
    virtual ~Plugin() = default;

    /// Replaces all texts of one value or none of them, so that they stay consistent. Called on any thread.
    /// Must not throw.
    virtual void filter(std::span<std::string *const> texts) const = 0;
};

/// The plugins of the process in the order of registration. Each receives the result of the previous one.
/// Thread-safe.
class Plugins {
public:
    /// Unregisters a plugin on destruction.
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
