#pragma once

#include <expressions/Variables.h>

#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// Names of the variables that an observer observes, equal by canonical equivalence. nullopt: every variable;
/// an empty set: none.
using ObservedNames = std::optional<VariableNames>;

/// Interface that the store of variables calls.
class ContentManagerObserver {
public:
    virtual ~ContentManagerObserver() = default;

    /// An observed variable changed, or was added if `former` is empty. Called on the thread of the write,
    /// with no lock held: it may write variables, replace observed names and remove observers, itself
    /// included. Writes of other threads may come in between, so `value` need not be the present value; an
    /// observer that shows the present state must read the store. A notice that began before the observer was
    /// removed, or before its names were replaced, may still arrive afterwards. An exception is reported and
    /// does not keep the notice from other observers.
    virtual void variableDidChange(std::string_view name, const std::optional<std::string> &former,
                                   const std::string &value) = 0;
};

/// Observer that is registered through a Content handle.
class ContentObserver : public ContentManagerObserver {};

} // namespace velmar
