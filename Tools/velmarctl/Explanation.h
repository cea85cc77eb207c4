#pragma once

#include <EvaluationContext.h>

#include <ostream>

namespace velmar {

/// Prints what led to the value of an expression, in aligned columns, and an empty line: each named condition
/// with its value, its text, the values of its variables and its failure; then the parts of the expression,
/// one a line and indented by brackets, with the value of each ("failed" where the evaluation ended, "-"
/// where it did not come to) and with the values of its variables. Long texts are cut.
void writeExplanation(std::ostream &out, const expressions::Expression &expression,
                      const Evaluation &evaluation, const EvaluationContext &context);

} // namespace velmar
