#pragma once

#include <expressions/ExpressionElement.h>

#include <Foundation/RegularExpression.h>

#include <string>
#include <string_view>
#include <vector>

namespace velmar::expressions {

/// Splits lines into elements by a regular expression, which is built from the operators' texts and the
/// pattern of names. Simple lines don't need it. An immutable value: copies share the compiled form.
/// Thread-safe.
class Tokeniser {
public:
    /// Returns a tokeniser for a pattern of names. The default pattern is compiled once per process. Throws
    /// RegularExpressionError (InvalidPattern).
    [[nodiscard]] static Tokeniser withNames(std::string_view variableNamePattern);

    /// Returns at least one element. Throws ExpressionError and RegularExpressionError.
    [[nodiscard]] std::vector<ExpressionElement> elements(std::string_view line) const;

    [[nodiscard]] const std::string &pattern() const noexcept { return tokens_.pattern(); }

private:
    explicit Tokeniser(std::string_view variableNamePattern);

    void append(std::string_view token, std::vector<ExpressionElement> &elements) const;
    [[nodiscard]] ExpressionElement element(std::string_view text) const;
    [[nodiscard]] Operand operand(std::string_view text) const;

    bool hasDefaultNames_;
    RegularExpression names_;
    RegularExpression tokens_;
};

} // namespace velmar::expressions
