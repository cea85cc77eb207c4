#pragma once

namespace velmar {

/// Replaces the accessible interface of scroll areas by that of plain parents. The toolkit's own one (Qt 6.4)
/// reads beyond its list of children if a child, such as a scroll bar, has disappeared since they were
/// counted. Call this once after creating the application.
void installAccessibleScrollAreas();

} // namespace velmar
