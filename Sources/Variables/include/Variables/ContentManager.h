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

    /// Gives a variable a value and notifies its observers of the change. An equal value (by canonical
    /// equivalence) is stored without a notice. The name is given bare or as "${NAME}"; a leading "${" and a
    /// trailing "}" are stripped, each by itself. `log`: a change is logged, at information level.
    virtual void updateVariable(std::string_view name, std::string value, bool log) = 0;

    /// The same for each pair, logged.
    virtual void updateVariables(const std::map<std::string, std::string> &variables) = 0;

    /// Gives a placeholder a value, without a line in the log.
    virtual void updatePlaceholder(GeneralSection::Placeholders placeholder, std::string value) = 0;

    /// The variables of this moment.
    [[nodiscard]] virtual VariablesSnapshot variables() const = 0;

    /// Registers an observer for changes of the variables with these names until it is removed or destroyed.
    /// Replaces the observer of that identity, if there is one.
    virtual void addObserver(const UUID &identity, std::weak_ptr<ContentManagerObserver> observer,
                             ObservedNames names) = 0;

    /// Replaces the names of an observer in one step. The observer is notified of every write that begins
    /// afterwards and changes a variable of the new names; names in both sets miss no write. Does nothing if
    /// there is no observer of that identity.
    virtual void setObservedNames(const UUID &identity, ObservedNames names) = 0;
    virtual void removeObserver(const UUID &identity) = 0;
};

/// The store of all variables of the session, as texts. One instance is shared by the process, made at the
/// first use with no variables. Any thread.
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

    /// At the start: gives the variables of General.Variables their values, logged, then every name that keys
    /// declared and that has no value yet the empty one, unlogged.
    void registerVariables(const Configuration &configuration);

    /// Gives the named variables their values from the book again, unlogged; names that it lacks are left
    /// alone.
    void resetVariables(const VariableNames &names, const ExpressionsBook<std::string> &book);

private:
    struct Change {
        std::optional<std::string> former;
    };

    // What becomes of a value that is there already.
    enum class Present { isReplaced, stays };

    // The change that storing the value made, none if the variable had an equal one.
    std::optional<Change> store(std::string_view name, const std::string &value, Present present);
    void notifyObservers(std::string_view name, const Change &change, const std::string &value) const;

    ThreadSafe<CopyOnWrite<NumberedVariables>> variables_;
    ThreadSafe<ObserversByName> observers_;
    // Lets writes skip the observers' lock when there are none. An observer added concurrently may miss the
    // notice but will read the new value, since write and read hold the variables' lock.
    std::atomic<bool> hasObservers_{false};
};

} // namespace velmar
