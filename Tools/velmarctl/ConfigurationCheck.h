#pragma once

#include <Diagnostic.h>

#include <string>
#include <vector>

namespace velmar {

class IdentityAuthority;

/// Says what the application would do with a file as its configuration, by the application's own admission
/// and decoding.
class ConfigurationCheck {
public:
    struct Options {
        bool admission = true; ///< Whether owner and permissions count.
        bool strict = false;   ///< Whether warnings are errors.
    };

    /// The authority must outlive the check.
    ConfigurationCheck(Options options, const IdentityAuthority &authority);

    /// What there is to say, in the order of the lines; the application would refuse the file if there is an
    /// error. Of very many warnings the first 1000 stand for all. The process's log is turned to this list
    /// meanwhile.
    [[nodiscard]] std::vector<Diagnostic> check(const std::string &file) const;

private:
    Options options_;
    const IdentityAuthority &authority_;
};

} // namespace velmar
