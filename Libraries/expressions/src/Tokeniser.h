#pragma once

#include <expressions/ExpressionElement.h>

#include <Foundation/RegularExpression.h>

#include <string>
#include <string_view>
#include <vector>

namespace velmar::expressions {

/// Takes lines apart into elements, with one regular expression that is made of the operators' texts and the
/// pattern of names; plain lines without it. An immutable value: copies share what is compiled.
class Tokeniser {
public:
    /// The default pattern is compiled once for the process. Throws RegularExpressionError (InvalidPattern).
    [[nodiscard]] static Tokeniser withNames(std::string_view variableNamePattern);

    /// At least one element. Throws ExpressionError and RegularExpressionError.
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
