#pragma once

#include <Configuration/ExpressionsBook.h>
#include <Settings/Config.h>
#include <Variables/ContentManager.h>
#include <expressions/Expression.h>

#include <boost/unordered/unordered_flat_set.hpp>

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace velmar {

/// Evaluates conditions over the current variables. A condition may refer to the configuration's named
/// conditions like variables; a named condition sees variables only. The results of the named conditions are
/// cached per state of the variables. The process shares one instance. Thread-safe.
class ConditionEvaluator {
public:
    using NamedConditions = ExpressionsBook<expressions::Expression>;

    ConditionEvaluator(); ///< Uses the present configuration and the shared store at each evaluation.
    /// Uses a fixed book. A null `contentManager` selects the shared store at each evaluation.
    ConditionEvaluator(NamedConditions conditions,
                       std::shared_ptr<const ContentManagerProtocol> contentManager);

    [[nodiscard]] static std::shared_ptr<ConditionEvaluator> shared() {
        return Shared<ConditionEvaluator>::instance();
    }

    /// Returns the result of `condition`. The first named condition that fails is logged once per state of
    /// the variables. Throws expressions::ExpressionError if `condition` or any named condition fails, even
    /// one that `condition` does not use.
    [[nodiscard]] bool evaluate(const expressions::Expression &condition);

    /// Returns the variables that affect the result: the variables in `condition` and in all named
    /// conditions, without the names of conditions in `condition`.
    [[nodiscard]] VariableNames involvedVariables(const expressions::Expression &condition);

private:
    // Names used by one book.
    struct Names {
        explicit Names(std::shared_ptr<const NamedConditions> conditions);

        std::shared_ptr<const NamedConditions> book;
        boost::unordered_flat_set<std::string, VariableNameHash, VariableNameEqual> conditions;
        VariableNames variables;
    };
    // Results of one book for one state of the variables.
    struct Notes {
        struct Failure {
            std::string condition;
            expressions::ExpressionError error;
        };

        Notes(std::shared_ptr<const NamedConditions> conditions, const VariablesSnapshot &variables);

        std::shared_ptr<const NamedConditions> book;
        std::uint64_t version;
        Variables values;               // "true" or "false" by name.
        std::optional<Failure> failure; // The first failure; later conditions are not evaluated.
    };
    struct View {
        VariablesSnapshot variables;
        std::shared_ptr<const Notes> notes;
    };

    View view();

    Config<NamedConditions> _conditions;
    std::shared_ptr<const ContentManagerProtocol> contentManager_; // Null selects the shared store.
    std::mutex mutex_;                                             // Guards notes_ and names_.
    std::shared_ptr<const Notes> notes_;
    std::shared_ptr<const Names> names_;
};

} // namespace velmar
