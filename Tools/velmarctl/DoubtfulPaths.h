#pragma once

#include <UsageWarning.h>

#include <vector>

namespace velmar {

struct Configuration;
class IdentityAuthority;
class PropertyListValue;

/// Warns of keys that hold a script, a picture, a PDF or an icon and lead to no file, or to one that an
/// ordinary user may change. Paths with "${" in them are not judged, nor are URLs of other kinds than files.
[[nodiscard]] std::vector<UsageWarning> doubtfulPaths(const PropertyListValue &file,
                                                      const Configuration &configuration,
                                                      const IdentityAuthority &authority);

} // namespace velmar
