#pragma once

#include <Foundation/Descriptor.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace velmar {

/// Each throws FileError, about `path`.

/// Its size now, in bytes; IsDirectory or NotRegularFile if it is something else.
[[nodiscard]] std::size_t sizeOfRegularFile(const Descriptor &descriptor, const std::string &path);

/// A regular file from the descriptor's position to the end; TooLarge above `limit` bytes.
[[nodiscard]] std::string readRegularFile(const Descriptor &descriptor, const std::string &path,
                                          std::size_t limit);

void writeWhole(const Descriptor &descriptor, const std::string &path, std::string_view contents);

} // namespace velmar
