#pragma once

#include <Configuration/MDMApi.h>
#include <Foundation/LocalizedError.h>

#include <string>
#include <string_view>

namespace velmar {

struct BodyItem;

/// How the body of a request is written.
enum class Format { json, xml };

/// How a server takes what it is sent.
[[nodiscard]] Format encodingFormat(MDMApi api) noexcept;

/// A body that cannot be written as XML.
class InvalidXMLBody final : public LocalizedError {
public:
    /// The path of the key of the body in the file.
    explicit InvalidXMLBody(std::string_view codingPath);
};

/// The body as it is sent, UTF-8. Any thread.
///
/// JSON: the values as they are. XML: a dictionary of one key, the name of the root element. A dictionary is
/// the elements within it; a list under a key is that many elements of the key's name, a list anywhere else
/// elements with the name "element"; the rest is text. Throws InvalidXMLBody with the path given for any
/// other body, for a key that is no name of XML, and for a text with characters that XML doesn't have.
[[nodiscard]] std::string encodedBody(const BodyItem &body, Format format, std::string_view codingPath);

} // namespace velmar
