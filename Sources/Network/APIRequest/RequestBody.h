#pragma once

#include <Configuration/MDMApi.h>
#include <Foundation/LocalizedError.h>

#include <string>
#include <string_view>

namespace velmar {

struct BodyItem;

/// Encoding of the body of a request.
enum class Format { json, xml };

/// Returns the encoding expected by a server.
[[nodiscard]] Format encodingFormat(MDMApi api) noexcept;

/// Error for a body that cannot be encoded as XML.
class InvalidXMLBody final : public LocalizedError {
public:
    /// `codingPath` is the dotted path of the body's key in the configuration file.
    explicit InvalidXMLBody(std::string_view codingPath);
};

/// Returns the encoded body, UTF-8. Any thread.
///
/// JSON preserves the types of the values. An XML body must be a dictionary with a single key, the name of
/// the root element. A nested dictionary becomes child elements; a list under a key becomes repeated elements
/// with the name of the key, any other list elements named "element"; other values become text. Throws
/// InvalidXMLBody with `codingPath` for any other XML body, a key that is not an XML name, or a text with
/// characters not allowed in XML.
[[nodiscard]] std::string encodedBody(const BodyItem &body, Format format, std::string_view codingPath);

} // namespace velmar
