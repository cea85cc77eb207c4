#pragma once

#include <Variables/ContentManager.h>

#include <atomic>

namespace velmar {

/// An object's handle on the store of variables, usually its member `_contentVariables`: reads, writes and,
/// once subscribed, has the object told of changes until the handle is destroyed. Any thread; what a handle
/// is destroyed with must be done with it.
class Content {
public:
    explicit Content(std::shared_ptr<ContentManagerProtocol> contentManager = ContentManager::shared());
    ~Content();
    Content(const Content &) = delete;
    Content &operator=(const Content &) = delete;

    [[nodiscard]] const UUID &contentManagerObserverId() const noexcept { return contentManagerObserverId_; }

    /// Has the observer told of every change from now on; it is held weakly. The first call counts, later
    /// ones do nothing.
    void subscribe(std::weak_ptr<ContentObserver> observer);

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
