#pragma once

#include <Variables/ContentManager.h>

#include <atomic>

namespace velmar {

/// An object's handle on the store of variables, usually its member `_contentVariables`. Reads and writes
/// variables and, once subscribed, keeps an observer registered until the handle is destroyed. Thread-safe
/// except for destruction.
class Content {
public:
    explicit Content(std::shared_ptr<ContentManagerProtocol> contentManager = ContentManager::shared());
    ~Content();
    Content(const Content &) = delete;
    Content &operator=(const Content &) = delete;

    [[nodiscard]] const UUID &contentManagerObserverId() const noexcept { return contentManagerObserverId_; }

    /// Registers the observer, which is held weakly, for changes of the named variables, by default of every
    /// variable. Only the first call has an effect.
    void subscribe(std::weak_ptr<ContentObserver> observer, ObservedNames names = std::nullopt);

    /// Replaces the observed names. The observer is notified of every later write that changes a variable of
    /// the new names. Does nothing before subscribe().
    void setObservedNames(ObservedNames names);

    void updateVariable(std::string_view name, std::string value, bool log) const;
    void updateVariables(const std::map<std::string, std::string> &variables) const;
    void updatePlaceholder(GeneralSection::Placeholders placeholder, std::string value) const;
    [[nodiscard]] VariablesSnapshot variables() const;

private:
    UUID contentManagerObserverId_;
    std::shared_ptr<ContentManagerProtocol> contentManager_;
    std::atomic<bool> subscribed_{false};
};

} // namespace velmar
