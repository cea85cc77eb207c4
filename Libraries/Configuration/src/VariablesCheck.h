#pragma once

namespace velmar {

class DecodingContext;
class PropertyListValue;
struct Configuration;

/// Checks that what the variables and all else of a decoded file use is defined, and that no variable's value
/// leads back to itself. Throws ConfigurationError for a fault of General.Variables, with its path, and
/// ExpressionError for one elsewhere.
void checkVariables(const Configuration &configuration, const PropertyListValue &file,
                    DecodingContext &context);

} // namespace velmar
