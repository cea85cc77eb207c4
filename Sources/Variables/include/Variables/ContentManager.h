#pragma once

#include <Base/Shared.h>
#include <Configuration/ExpressionsBook.h>
#include <Configuration/GeneralSection.h>
#include <Dispatch/ThreadSafe.h>
#include <Foundation/UUID.h>
#include <Variables/ObserversByName.h>
#include <Variables/VariablesSnapshot.h>

#include <atomic>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace velmar {

struct Configuration;

/// Interface of the store of variables to Content. Thread-safe.
class ContentManagerProtocol {
public:
    virtual ~ContentManagerProtocol() = default;

    /// Sets a variable and notifies its observers of the change. An equal value (by canonical equivalence)
    /// causes no notice. The name is given bare or as "${NAME}"; a leading "${" and a trailing "}" are
    /// stripped independently. `log`: changes are logged at information level.
    virtual void updateVariable(std::string_view name, std::string value, bool log) = 0;

    /// Sets each variable in the order of the names, as updateVariable() does with logging.
    virtual void updateVariables(const std::map<std::string, std::string> &variables) = 0;

    /// Sets the variable of a placeholder, without logging.
    virtual void updatePlaceholder(GeneralSection::Placeholders placeholder, std::string value) = 0;

    /// Returns a snapshot of the current variables.
    [[nodiscard]] virtual VariablesSnapshot variables() const = 0;

    /// Registers an observer for changes of the variables with these names until it is removed or destroyed.
    /// Replaces any observer of the same identity.
    virtual void addObserver(const UUID &identity, std::weak_ptr<ContentManagerObserver> observer,
                             ObservedNames names) = 0;

    /// Replaces the names of an observer atomically. The observer is notified of every write that begins
    /// afterwards and changes a variable of the new names; names in both sets miss no write. Does nothing if
    /// there is no observer of that identity.
    virtual void setObservedNames(const UUID &identity, ObservedNames names) = 0;
    virtual void removeObserver(const UUID &identity) = 0;
};

/// The store of all variables of the session, as texts. The process shares one instance, which is created
/// empty at first use. Thread-safe.
class ContentManager final : public ContentManagerProtocol {
public:
    ContentManager();

    [[nodiscard]] static std::shared_ptr<ContentManager> shared() {
        return Shared<ContentManager>::instance();
    }

    void updateVariable(std::string_view name, std::string value, bool log) override;
    void updateVariables(const std::map<std::string, std::string> &variables) override;
    void updatePlaceholder(GeneralSection::Placeholders placeholder, std::string value) override;
    [[nodiscard]] VariablesSnapshot variables() const override;
    void addObserver(const UUID &identity, std::weak_ptr<ContentManagerObserver> observer,
                     ObservedNames names) override;
    void setObservedNames(const UUID &identity, ObservedNames names) override;
    void removeObserver(const UUID &identity) override;

    /// Sets the variables of General.Variables, with logging, then sets every declared variable that has no
    /// value to the empty text, without logging. Called at start-up.
    void registerVariables(const Configuration &configuration);

    /// Resets the named variables to their values in `book`, without logging. Names that `book` lacks are
    /// unchanged.
    void resetVariables(const VariableNames &names, const ExpressionsBook<std::string> &book);

private:
    struct Change {
        std::optional<std::string> former;
    };

    // Treatment of an existing value.
    enum class Present { isReplaced, stays };

    // Returns the change, or nullopt if the variable stays or has an equal value already.
    std::optional<Change> store(std::string_view name, const std::string &value, Present present);
    void notifyObservers(std::string_view name, const Change &change, const std::string &value) const;

    ThreadSafe<CopyOnWrite<NumberedVariables>> variables_;
    ThreadSafe<ObserversByName> observers_;
    // Lets writes skip the observers' lock when there are none. An observer added concurrently may miss the
    // notice but will read the new value, since write and read hold the variables' lock.
    std::atomic<bool> hasObservers_{false};
};

} // namespace velmar
