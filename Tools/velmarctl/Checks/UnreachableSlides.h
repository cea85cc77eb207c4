#pragma once

#include <Checks/Check.h>

namespace velmar {

/// Warns of slides that no way leads to from the first one, and of slides before the last one that no way
/// leads away from. Every "NavigateToSlide" of the file counts for every slide; one by "Offset" may lead
/// anywhere. A configuration of the menu bar shows a single slide and gets no warnings.
[[nodiscard]] std::vector<UsageWarning> unreachableSlides(const CheckedFile &file);

} // namespace velmar
