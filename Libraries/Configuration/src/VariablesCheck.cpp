#include "VariablesCheck.h"

#include "VariableReferences.h"

#include <Configuration/Configuration.h>
#include <Configuration/ConfigurationError.h>
#include <Configuration/DecodingContext.h>
#include <Configuration/ExpressionError.h>
#include <Configuration/ExpressionsBook.h>
#include <Configuration/GeneralSection.h>
#include <Configuration/Populatable.h>

#include <boost/unordered/unordered_flat_map.hpp>
#include <boost/unordered/unordered_flat_set.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmar {

namespace {

using Names = boost::unordered_flat_set<std::string_view, VariableNameHash, VariableNameEqual>;

/// Follows the references among General.Variables. Each variable is followed once, so that one pass checks a
/// file of any size. Iterative, because the file decides the length of a chain.
class BookCheck {
public:
    /// `others` are the defined names besides the variables of the book. They must outlive this object.
    BookCheck(const ExpressionsBook<std::string>::Models &models, const Names &others) : others_(others) {
        variables_.reserve(models.size());
        for (const auto &[name, value] : models) {
            byName_.insert_or_assign(bareVariableName(name), variables_.size()); // As in the store.
            variables_.push_back({name, value});
        }
    }

    /// A fault and the name of the variable to correct.
    struct Fault {
        std::string name;
        ExpressionError error;
    };

    [[nodiscard]] std::optional<Fault> firstFault() {
        for (Variable &variable : variables_) {
            if (auto fault = follow(variable)) {
                return fault;
            }
        }
        return std::nullopt;
    }

private:
    struct Variable {
        std::string_view name;
        std::string_view value;
        enum class State { untouched, open, done } state = State::untouched;
    };

    /// A variable being followed, and the rest of the references in its value.
    struct Step {
        Variable *variable;
        VariableReferences references;
    };

    std::optional<Fault> follow(Variable &first) {
        enter(first);
        while (!way_.empty()) {
            Step &step = way_.back();
            if (const auto reference = step.references.next()) {
                if (auto fault = use(reference->name, *step.variable)) {
                    return fault;
                }
            } else {
                step.variable->state = Variable::State::done;
                way_.pop_back();
            }
        }
        return std::nullopt;
    }

    void enter(Variable &variable) {
        if (variable.state == Variable::State::untouched) {
            variable.state = Variable::State::open;
            way_.push_back({&variable, VariableReferences(variable.value)});
        }
    }

    std::optional<Fault> use(std::string_view name, const Variable &user) {
        const auto found = byName_.find(name);
        if (found == byName_.end()) {
            if (others_.contains(name)) {
                return std::nullopt;
            }
            return Fault{std::string(user.name),
                         ExpressionErrors::UndefinedVariable{std::string(name), std::string(user.value)}};
        }
        Variable &used = variables_[found->second];
        if (&used == &user) {
            return Fault{std::string(user.name), ExpressionErrors::OwnDefinition{std::string(user.name)}};
        }
        if (used.state == Variable::State::open) {
            return Fault{std::string(used.name),
                         ExpressionErrors::CircularReference{std::string(used.name), trace()}};
        }
        enter(used);
        return std::nullopt;
    }

    [[nodiscard]] std::vector<std::string> trace() const {
        std::vector<std::string> names;
        for (const Step &step : way_) {
            names.emplace_back(step.variable->name);
        }
        return names;
    }

    const Names &others_;
    std::vector<Variable> variables_;
    boost::unordered_flat_map<std::string_view, std::size_t, VariableNameHash, VariableNameEqual> byName_;
    std::vector<Step> way_;
};

void checkBook(const Configuration &configuration, const Names &others, const PropertyListValue &file,
               DecodingContext &context) {
    const KeyWrapper<GeneralSection> &general = configuration._general;
    const auto &variables = general()._variables;
    const auto fault = BookCheck(variables().models(), others).firstFault();
    if (!fault) {
        return;
    }
    const CodingPath root;
    const CodingPath section(root, general.name().stringValue);
    const CodingPath book(section, variables.name().stringValue);
    const std::string path = CodingPath(book, fault->name).text();
    const PropertyListValue *value = &file;
    for (const std::string_view key : {section.lastKey(), book.lastKey(), std::string_view(fault->name)}) {
        value = value->find(key);
    }
    context.noteFailure(path, value->offset());
    throw ConfigurationError(ConfigurationErrors::Custom{path, fault->error.errorDescription()});
}

/// Visits the names that a place of the file uses.
template <class Visit>
void visitNames(const DecodingContext::VariablesUse &use, Visit visit) {
    if (use.condition != nullptr) {
        for (const expressions::ExpressionElement &element : *use.condition) {
            if (const std::string *const name = expressions::variableOf(element)) {
                visit(*name);
            }
        }
    } else {
        VariableReferences references(*use.text->string());
        while (const auto reference = references.next()) {
            visit(reference->name);
        }
    }
}

ExpressionError faultOf(const DecodingContext::VariablesUse &use, VariableNames undefined, std::string path) {
    if (use.condition == nullptr) {
        return ExpressionErrors::Undefined{std::move(undefined), std::move(path)};
    }
    const ExpressionErrors::UndefinedVariable fault{*undefined.begin(), use.condition->description()};
    return ExpressionErrors::UndefinedVariableAtPath{std::move(path), fault.errorDescription()};
}

} // namespace

void checkVariables(const Configuration &configuration, const PropertyListValue &file,
                    DecodingContext &context) {
    context.declareByPopulatedTexts(configuration._general()._variables.rawValue().models());
    Names defined;
    for (const auto &placeholder : enumCases<Placeholders>) {
        defined.insert(placeholder.rawString);
    }
    defined.insert(context.declaredVariables().begin(), context.declaredVariables().end());
    checkBook(configuration, defined, file, context);

    for (const auto &variable : configuration._general()._variables().models()) {
        defined.insert(bareVariableName(variable.first));
    }
    const auto &conditions = configuration._conditions().models();
    for (const DecodingContext::VariablesUse &use : context.variablesUses()) {
        VariableNames undefined;
        visitNames(use, [&](std::string_view name) {
            if (!defined.contains(name) &&
                (use.condition == nullptr || !conditions.contains(std::string(name)))) {
                undefined.emplace(name);
            }
        });
        if (!undefined.empty()) {
            std::string path = pathOf(*use.text, file);
            context.noteFailure(path, use.text->offset());
            throw faultOf(use, std::move(undefined), std::move(path));
        }
    }
}

} // namespace velmar
