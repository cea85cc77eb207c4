#pragma once

#include <Checks/Check.h>

namespace velmar {

/// Warns of slides that cannot be reached from the first one, and of slides before the last one that cannot
/// be left. A "NavigateToSlide" anywhere in the file counts for every slide; one with "Offset" may lead to
/// any slide. A configuration of the menu bar shows a single slide and gets no warnings.
[[nodiscard]] std::vector<UsageWarning> unreachableSlides(const CheckedFile &file);

} // namespace velmar
