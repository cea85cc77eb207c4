#pragma once

#include <Checks/Check.h>

namespace velmar {

/// Warns of slides that nobody gets to from the first one, and of slides before the last one where a session
/// ends in a dead end. Every "NavigateToSlide" of the file counts for every slide, and one by "Offset" may
/// lead anywhere. In the menu bar there is one slide, and nothing to say.
[[nodiscard]] std::vector<UsageWarning> unreachableSlides(const CheckedFile &file);

} // namespace velmar
