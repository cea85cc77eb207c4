#pragma once

#include <Dispatch/ThreadSafe.h>
#include <Variables/Content.h>

#include <boost/unordered/unordered_flat_set.hpp>

namespace velmar {

/// An object with a handle on the store of variables, and those of them that concern it: it hears of their
/// changes only. It is owned by a shared_ptr; whoever makes it subscribes the handle to it:
///
///     auto label = std::make_shared<Label>(...);
///     label->contentVariables().subscribe(label);
class ObservableContent : public ContentObserver {
public:
    explicit ObservableContent(
        std::shared_ptr<ContentManagerProtocol> contentManager = ContentManager::shared());

    [[nodiscard]] Content &contentVariables() noexcept { return _contentVariables; }

    /// The variables that concern the object from now on, in place of those before. Any thread.
    void setConcerningVariables(const VariableNames &names);
    [[nodiscard]] bool isConcernedBy(std::string_view variable) const;

    /// Passes on what concerns the object.
    void variableDidChange(std::string_view name, const std::optional<std::string> &former,
                           const std::string &value) final;

protected:
    /// A variable that concerns the object changed; as ContentManagerObserver::variableDidChange.
    virtual void concerningVariableDidChange(std::string_view name, const std::optional<std::string> &former,
                                             const std::string &value) = 0;

private:
    using Names = boost::unordered_flat_set<std::string, VariableNameHash, VariableNameEqual>;

    ThreadSafe<Names> names_;
    Content _contentVariables;
};

} // namespace velmar
