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

/// Evaluates conditions over the variables of the moment. The conditions that the configuration names stand
/// in any other one by their names, like variables; among themselves they see variables only. What they give
/// is worked out once for a state of the variables and shared by all evaluations. One instance is shared by
/// the process. Any thread.
class ConditionEvaluator {
public:
    using NamedConditions = ExpressionsBook<expressions::Expression>;

    ConditionEvaluator(); ///< Of the configuration and the shared store, those of the moment.
    /// Of a book that stays; a null store is the shared one.
    ConditionEvaluator(NamedConditions conditions,
                       std::shared_ptr<const ContentManagerProtocol> contentManager);

    [[nodiscard]] static std::shared_ptr<ConditionEvaluator> shared() {
        return Shared<ConditionEvaluator>::instance();
    }

    /// Throws expressions::ExpressionError: the condition's own one, or that of a named condition, which no
    /// evaluation does without. The first named condition that fails is told in the log, once for a state of
    /// the variables.
    [[nodiscard]] bool evaluate(const expressions::Expression &condition);

    /// The variables on which the outcome of a condition depends: its own, and those of all named conditions.
    [[nodiscard]] VariableNames involvedVariables(const expressions::Expression &condition);

private:
    // Of one book.
    struct Names {
        explicit Names(std::shared_ptr<const NamedConditions> conditions);

        std::shared_ptr<const NamedConditions> book;
        boost::unordered_flat_set<std::string, VariableNameHash, VariableNameEqual> conditions;
        VariableNames variables;
    };
    // Of one book and one state of the variables.
    struct Notes {
        struct Failure {
            std::string condition;
            expressions::ExpressionError error;
        };

        Notes(std::shared_ptr<const NamedConditions> conditions, const VariablesSnapshot &variables);

        std::shared_ptr<const NamedConditions> book;
        std::uint64_t version;
        Variables values;               // "true" or "false" by name.
        std::optional<Failure> failure; // The first one; the values end before it.
    };
    struct View {
        VariablesSnapshot variables;
        std::shared_ptr<const Notes> notes;
    };

    View view();

    Config<NamedConditions> _conditions;
    std::shared_ptr<const ContentManagerProtocol> contentManager_; // Null for the shared one.
    std::mutex mutex_;                                             // Guards notes_ and names_.
    std::shared_ptr<const Notes> notes_;
    std::shared_ptr<const Names> names_;
};

} // namespace velmar
