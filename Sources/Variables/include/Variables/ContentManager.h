#pragma once

#include <Base/Shared.h>
#include <Configuration/ExpressionsBook.h>
#include <Configuration/GeneralSection.h>
#include <Dispatch/ThreadSafe.h>
#include <Foundation/UUID.h>
#include <Variables/ContentObserver.h>
#include <Variables/VariablesSnapshot.h>

#include <boost/unordered/unordered_flat_map.hpp>

#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace velmar {

struct Configuration;

/// What the store of variables offers to whoever holds a Content. Any thread.
class ContentManagerProtocol {
public:
    virtual ~ContentManagerProtocol() = default;

    /// Gives a variable a value and tells every observer if that changed it: an equal value (by canonical
    /// equivalence) is taken over in silence. The name is given bare or as "${NAME}"; a leading "${" and a
    /// trailing "}" are stripped, each by itself. `log`: a change is logged, at information level.
    virtual void updateVariable(std::string_view name, std::string value, bool log) = 0;

    /// The same for each pair, logged.
    virtual void updateVariables(const std::map<std::string, std::string> &variables) = 0;

    /// Gives a placeholder a value, without a line in the log.
    virtual void updatePlaceholder(GeneralSection::Placeholders placeholder, std::string value) = 0;

    /// The variables of this moment.
    [[nodiscard]] virtual VariablesSnapshot variables() const = 0;

    /// Has the observer told of every change from now on, until it is removed or gone. An identity stands
    /// for one observer: the last one added under it.
    virtual void addObserver(const UUID &identity, std::weak_ptr<ContentManagerObserver> observer) = 0;
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
    void addObserver(const UUID &identity, std::weak_ptr<ContentManagerObserver> observer) override;
    void removeObserver(const UUID &identity) override;

    /// At the start: gives the variables of General.Variables their values, logged, then every name that keys
    /// declared and that has no value yet the empty one, unlogged.
    void registerVariables(const Configuration &configuration);

    /// Gives the named variables their values from the book again, unlogged; names that it lacks are left
    /// alone.
    void resetVariables(const VariableNames &names, const ExpressionsBook<std::string> &book);

private:
    using Observers = boost::unordered_flat_map<UUID, std::weak_ptr<ContentManagerObserver>, std::hash<UUID>>;
    struct Change {
        std::optional<std::string> former;
    };

    // What becomes of a value that is there already.
    enum class Present { isReplaced, stays };

    // The change that storing the value made, none if the variable had an equal one.
    std::optional<Change> store(std::string_view name, const std::string &value, Present present);
    void tellObservers(std::string_view name, const Change &change, const std::string &value) const;

    ThreadSafe<CopyOnWrite<NumberedVariables>> variables_;
    ThreadSafe<CopyOnWrite<Observers>> observers_;
    // Spares a write the second lock. Who is added after a write that missed it reads what was written: both
    // the write and the reading hold the lock of the variables.
    std::atomic<bool> hasObservers_{false};
};

} // namespace velmar
