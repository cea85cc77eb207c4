#pragma once

#include <Dispatch/DescriptorWatch.h>
#include <Foundation/Descriptor.h>
#include <Foundation/ProcessError.h>

#include <string>
#include <system_error>

namespace velmar {

/// Transfers a descriptor to the pool, which watches it. Throws ProcessError about the program at `path`.
inline DescriptorWatch watched(Descriptor descriptor, const std::string &path) {
    try {
        return {descriptor.release(), path};
    } catch (const std::system_error &error) {
        throw ProcessError(ProcessError::NotLaunched{path, error.code().value()});
    }
}

} // namespace velmar
