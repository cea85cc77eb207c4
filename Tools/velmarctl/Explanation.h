#pragma once

#include <EvaluationContext.h>

#include <ostream>

namespace velmar {

/// Prints how the value of an expression was reached, in aligned columns, followed by an empty line. First
/// each named condition with its value, its text, the values of its variables and its error. Then the parts
/// of the expression, one per line and indented by brackets, with the value of each part ("failed" if the
/// evaluation ended there, "-" if it was not reached) and the values of its variables. Long texts are cut.
void writeExplanation(std::ostream &out, const expressions::Expression &expression,
                      const Evaluation &evaluation, const EvaluationContext &context);

} // namespace velmar
