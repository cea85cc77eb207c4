#include <Checks/Check.h>

#include <Checks/DoubtfulConditions.h>
#include <Checks/DoubtfulPaths.h>
#include <Checks/IneffectiveParts.h>
#include <Checks/UnreachableSlides.h>
#include <Checks/UnusedNames.h>

namespace velmar {

std::span<const Check> allChecks() {
    // Warnings of one place are printed in this order.
    static constexpr Check checks[] = {
        {"unused names", &unusedNames},
        {"doubtful conditions", &doubtfulConditions},
        {"doubtful paths", &doubtfulPaths},
        {"ineffective parts", &ineffectiveParts},
        {"unreachable slides", &unreachableSlides},
    };
    return checks;
}

} // namespace velmar
