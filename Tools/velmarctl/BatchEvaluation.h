#pragma once

#include <EvaluationContext.h>

#include <cstddef>
#include <istream>
#include <ostream>

namespace velmar {

/// A longer line is answered with an error: 16 MiB.
inline constexpr std::size_t longestBatchLine = std::size_t{16} << 20U;

/// Answers every line of a stream with one line, before it waits for the next: an object
/// {"expression": TEXT, "variables": {NAME: TEXT, ...}}, whose "variables" may be absent, with {"value":
/// BOOL}, and what fails or is no such object with {"error": TEXT}. The variables of a line count for it
/// alone, in place of those of the context. Ends with the stream, or when `out` takes no more.
void answerBatch(std::istream &in, std::ostream &out, const EvaluationContext &context);

} // namespace velmar
