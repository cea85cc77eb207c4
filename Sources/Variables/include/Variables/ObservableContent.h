#pragma once

#include <Variables/Content.h>

#include <memory>
#include <utility>

namespace velmar {

/// An observer with its own handle on the store, registered under the names of the variables that concern it.
/// It must be owned by a shared_ptr, and its creator subscribes it:
///
///     auto label = std::make_shared<Label>(...);
///     label->contentVariables().subscribe(label, label->names());
class ObservableContent : public ContentObserver {
public:
    explicit ObservableContent(
        std::shared_ptr<ContentManagerProtocol> contentManager = ContentManager::shared())
        : _contentVariables(std::move(contentManager)) {}

    [[nodiscard]] Content &contentVariables() noexcept { return _contentVariables; }

    /// Replaces the names of the variables that concern the object; see Content::setObservedNames.
    void setConcerningVariables(VariableNames names) { _contentVariables.setObservedNames(std::move(names)); }

private:
    Content _contentVariables;
};

} // namespace velmar
