#pragma once

#include <expressions/Variables.h>

#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// Names of the variables that an observer observes, compared by canonical equivalence. nullopt: every
/// variable; an empty set: none.
using ObservedNames = std::optional<VariableNames>;

/// Interface of the observers of the store of variables.
class ContentManagerObserver {
public:
    virtual ~ContentManagerObserver() = default;

    /// Reports that an observed variable changed, or was added if `former` is nullopt. Called on the writing
    /// thread with no lock held: the observer may write variables, replace observed names and remove
    /// observers, including itself. Another thread may have written since, so `value` may be outdated; an
    /// observer that shows the current state must read the store. A notice that began before the observer was
    /// removed, or before its names were replaced, may still arrive afterwards. An exception is reported and
    /// does not prevent the notices to other observers.
    virtual void variableDidChange(std::string_view name, const std::optional<std::string> &former,
                                   const std::string &value) = 0;
};

/// An observer registered through a Content handle.
class ContentObserver : public ContentManagerObserver {};

} // namespace velmar
