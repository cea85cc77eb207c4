#include <Explanation.h>

#include <ExpressionParts.h>
#include <PrintableText.h>

#include <Foundation/UnicodeText.h>

#include <fmt/format.h>

#include <algorithm>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmar {

namespace {

using expressions::Bracket;
using expressions::Expression;
using expressions::ExpressionElement;
using expressions::Operand;

// Widths in columns of a terminal.
constexpr std::size_t longestPart = 60;
constexpr std::size_t longestValue = 40;
constexpr std::size_t longestFailure = 120;

constexpr std::size_t deepestLevel = 16; // Deeper brackets are not indented further.

constexpr std::string_view failed = "failed";
constexpr std::string_view notReached = "-";

struct Row {
    std::size_t level = 0; // Indentation level.
    std::string part;
    std::string_view value;
    std::string details;
};

std::string_view text(std::optional<bool> value) {
    return !value ? failed : *value ? "true" : "false";
}

class Table {
public:
    void add(std::size_t level, std::string_view part, std::string_view value, std::string details) {
        rows_.push_back({level, shortened(part, longestPart), value, std::move(details)});
    }

    void write(std::ostream &out) const {
        std::size_t partColumns = 0;
        std::size_t valueColumns = 0;
        for (const Row &row : rows_) {
            if (!row.value.empty()) {
                partColumns = std::max(partColumns, indentation(row) + UnicodeText::displayWidth(row.part));
                valueColumns = std::max(valueColumns, row.value.size());
            }
        }
        for (const Row &row : rows_) {
            std::string line = std::string(indentation(row), ' ') + row.part;
            if (!row.value.empty()) {
                line = fmt::format("{}  {}", padded(std::move(line), partColumns), row.value);
            }
            if (!row.details.empty()) {
                line = fmt::format("{}  {}", padded(std::move(line), partColumns + 2 + valueColumns),
                                   row.details);
            }
            out << line << '\n';
        }
    }

private:
    static std::size_t indentation(const Row &row) { return 2 * std::min(row.level, deepestLevel); }

    std::vector<Row> rows_;
};

// Returns the values of the variables among the elements, each variable once, joined by the separator.
// `conditions` are the named conditions visible to the elements.
std::string valuesText(std::span<const ExpressionElement> elements, std::span<const NamedValue> conditions,
                       const EvaluationContext &context, std::string_view separator) {
    std::string values;
    std::set<std::string_view> names;
    for (const ExpressionElement &element : elements) {
        const auto *operand = std::get_if<Operand>(&element);
        const std::string *name = operand == nullptr ? nullptr : operand->variable();
        if (name == nullptr || !names.insert(*name).second) {
            continue;
        }
        const auto condition = std::ranges::find(conditions, *name, &NamedValue::name);
        const std::string *value = VariableLookup(context.variables()).find(*name);
        values += values.empty() ? std::string_view() : separator;
        if (condition != conditions.end()) {
            values += fmt::format("{}: {}, a named condition", *name, text(condition->value));
        } else if (value != nullptr) {
            values += fmt::format("{}: '{}'", *name, shortened(*value, longestValue));
        } else {
            values += fmt::format("{}: undefined", *name);
        }
    }
    return values;
}

bool isBracket(const ExpressionElement &element, Bracket bracket) {
    const auto *found = std::get_if<Bracket>(&element);
    return found != nullptr && *found == bracket;
}

void addParts(Table &table, const Expression &expression, const Evaluation &evaluation,
              const EvaluationContext &context) {
    const std::span<const ExpressionElement> elements = expression.elements();
    std::size_t level = 1;
    auto step = evaluation.steps.begin();
    for (std::size_t index = 0; index < elements.size();) {
        const bool isReached = step != evaluation.steps.end() && step->first == index;
        const std::size_t count = isReached ? step->count : partLength(elements.subspan(index));
        const auto elementsOfPart = elements.subspan(index, count);
        std::string part;
        for (const ExpressionElement &element : elementsOfPart) {
            part += (part.empty() ? "" : " ") + expressions::description(element);
        }
        const bool isOperand = std::holds_alternative<Operand>(elements[index]);
        const std::string_view value = isReached   ? text(step->result)
                                       : isOperand ? notReached
                                                   : std::string_view();
        if (isBracket(elements[index], Bracket::closing) && level > 1) {
            --level;
        }
        table.add(level, part, value, valuesText(elementsOfPart, evaluation.conditions, context, ", "));
        if (isBracket(elements[index], Bracket::opening)) {
            ++level;
        }
        if (isReached) {
            ++step;
        }
        index += count;
    }
}

} // namespace

void writeExplanation(std::ostream &out, const Expression &expression, const Evaluation &evaluation,
                      const EvaluationContext &context) {
    Table table;
    if (!evaluation.conditions.empty()) {
        table.add(0, "Named conditions", "", "");
    }
    for (const NamedValue &condition : evaluation.conditions) {
        std::string details = shortened(condition.condition->source(), longestPart);
        if (const std::string values = valuesText(condition.condition->elements(), {}, context, "; ");
            !values.empty()) {
            details += "; " + values;
        }
        if (!condition.value) {
            details += "; " + shortened(condition.failure, longestFailure);
        }
        table.add(1, condition.name, text(condition.value), std::move(details));
    }
    table.add(0, "Expression", "", "");
    addParts(table, expression, evaluation, context);
    table.write(out);
    out << '\n';
}

} // namespace velmar
