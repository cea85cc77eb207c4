#pragma once

#include <Foundation/Descriptor.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace velmar {

/// All functions throw FileError with `path`.

/// Returns the current size in bytes. Throws IsDirectory or NotRegularFile for other items.
[[nodiscard]] std::size_t sizeOfRegularFile(const Descriptor &descriptor, const std::string &path);

/// Reads a regular file from the descriptor's position to the end. Throws TooLarge above `limit` bytes.
[[nodiscard]] std::string readRegularFile(const Descriptor &descriptor, const std::string &path,
                                          std::size_t limit);

void writeWhole(const Descriptor &descriptor, const std::string &path, std::string_view contents);

} // namespace velmar
