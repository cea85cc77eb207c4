#pragma once

#include <Diagnostic.h>

#include <memory>
#include <string>
#include <vector>

namespace velmar {

struct Configuration;
class IdentityAuthority;

/// Says what the application would do with a file as its configuration, by the application's own admission
/// and decoding.
class ConfigurationCheck {
public:
    struct Options {
        bool admission = true; ///< Whether owner and permissions count.
        bool strict = false;   ///< Whether warnings are errors.
    };

    struct Report {
        /// What there is to say, in the order of the lines.
        std::vector<Diagnostic> diagnostics;
        /// Null if the application would refuse the file, for which there is an error then.
        std::shared_ptr<const Configuration> configuration;
    };

    /// The authority must outlive the check.
    ConfigurationCheck(Options options, const IdentityAuthority &authority);

    /// Of very many warnings the first 1000 stand for all. The process's log is turned to the diagnostics
    /// meanwhile.
    [[nodiscard]] Report check(const std::string &file) const;

private:
    Options options_;
    const IdentityAuthority &authority_;
};

} // namespace velmar
