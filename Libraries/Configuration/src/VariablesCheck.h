#pragma once

namespace velmar {

class DecodingContext;
class PropertyListValue;
struct Configuration;

/// Checks that all variables used in a decoded file are defined, and that no value of a variable refers back
/// to that variable. Throws ConfigurationError with the path for a fault in General.Variables, and
/// ExpressionError for a fault elsewhere.
void checkVariables(const Configuration &configuration, const PropertyListValue &file,
                    DecodingContext &context);

} // namespace velmar
