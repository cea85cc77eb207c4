#pragma once

namespace velmar::Localization {

/// Gives the texts of the interface in the user's language, English where there is no translation. After the
/// application is made, before the first text.
void install();

} // namespace velmar::Localization
