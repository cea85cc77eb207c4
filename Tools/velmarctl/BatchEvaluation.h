#pragma once

#include <EvaluationContext.h>

#include <cstddef>
#include <istream>
#include <ostream>

namespace velmar {

/// Maximum length of a line: 16 MiB. A longer line is answered with an error.
inline constexpr std::size_t longestBatchLine = std::size_t{16} << 20U;

/// Answers each line of a stream with one line before reading the next. A request is an object {"expression":
/// TEXT, "variables": {NAME: TEXT, ...}}; "variables" is optional. The answer is {"value": BOOL}, or
/// {"error": TEXT} if the evaluation fails or the line is not a request. The variables of a line apply to
/// that line only and override those of the context. Returns at the end of the stream, or when `out` fails.
void answerBatch(std::istream &in, std::ostream &out, const EvaluationContext &context);

} // namespace velmar
