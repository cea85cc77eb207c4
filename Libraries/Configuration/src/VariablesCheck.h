#pragma once

#include <Configuration/Configuration.h>
#include <Configuration/DecodingContext.h>

namespace velmar {

/// Checks that what the variables and all else of a decoded file use is defined, and that no variable's value
/// leads back to itself. Throws ConfigurationError for a fault of General.Variables, with its path, and
/// ExpressionError for one elsewhere.
void checkVariables(const Configuration &configuration, const PropertyListValue &file,
                    DecodingContext &context);

} // namespace velmar
