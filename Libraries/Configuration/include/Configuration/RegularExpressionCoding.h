#pragma once

#include <Configuration/Decodable.h>
#include <Foundation/RegularExpression.h>

namespace velmar {

/// Returns the compiled pattern of a value that is being decoded. Throws ConfigurationError (InvalidRegex).
[[nodiscard]] RegularExpression compiled(std::string_view pattern, const Decoding &decoding);

/// A regular expression, given as its pattern. Decoding throws ConfigurationError (InvalidRegex) if it
/// doesn't compile.
template <>
struct Decodable<RegularExpression> {
    static RegularExpression decode(const Decoding &decoding);
    static std::optional<PropertyList> encode(const RegularExpression &value) {
        return PropertyList(value.pattern());
    }
    static std::string plistType() { return "string"; }
    static ValueDescription describe(Descriptions & /*items*/) {
        return ValueDescription::text("regular expression");
    }
};

} // namespace velmar
