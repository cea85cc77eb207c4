#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// What the store of variables calls.
class ContentManagerObserver {
public:
    virtual ~ContentManagerObserver() = default;

    /// A variable changed, or came into being if there is no former value. Called on the thread of the write,
    /// outside all locks: it may write variables and end observations, its own too. A write of another thread
    /// may have come between, so that the value need not be the present one; whoever shows the present state
    /// reads the store. A notice that began before the end of an observation may still arrive after it.
    /// What it throws is reported and keeps no notice from the others.
    virtual void variableDidChange(std::string_view name, const std::optional<std::string> &former,
                                   const std::string &value) = 0;
};

/// What a Content handle has told of changes, on its owner's behalf.
class ContentObserver : public ContentManagerObserver {};

} // namespace velmar
