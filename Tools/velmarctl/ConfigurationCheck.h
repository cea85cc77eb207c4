#pragma once

#include <Diagnostic.h>

#include <memory>
#include <string>
#include <vector>

namespace velmar {

struct Configuration;
class IdentityAuthority;

/// Reports how the application would treat a file as its configuration, using the application's own admission
/// and decoding.
class ConfigurationCheck {
public:
    struct Options {
        bool admission = true; ///< Whether owner and permissions are checked.
        bool strict = false;   ///< Whether warnings are reported as errors.
    };

    struct Report {
        /// In the order of the lines.
        std::vector<Diagnostic> diagnostics;
        /// Null if the application would refuse the file. `diagnostics` then holds an error.
        std::shared_ptr<const Configuration> configuration;
    };

    /// The authority must outlive this object.
    ConfigurationCheck(Options options, const IdentityAuthority &authority);

    /// Checks a file. Reports at most 1000 warnings; a note counts the omitted ones. The process's log is
    /// redirected to the diagnostics during the call.
    [[nodiscard]] Report check(const std::string &file) const;

private:
    Options options_;
    const IdentityAuthority &authority_;
};

} // namespace velmar
