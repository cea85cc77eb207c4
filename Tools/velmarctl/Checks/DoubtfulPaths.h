#pragma once

#include <Checks/Check.h>

namespace velmar {

/// Warns of keys that hold a script, a picture, a PDF or an icon and lead to no file, or to one that an
/// ordinary user may change. Paths with "${" in them are not judged, nor are URLs of other kinds than files.
[[nodiscard]] std::vector<UsageWarning> doubtfulPaths(const CheckedFile &file);

} // namespace velmar
