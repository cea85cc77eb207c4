#pragma once

namespace velmar {

/// Has readers of the screen see scroll areas as plain parents of what is in them. The toolkit's own interface
/// of one (Qt 6.4) reads past its list of children when it is asked for one that has gone since they were
/// counted, as a scroll bar may. Once the application is made.
void installAccessibleScrollAreas();

} // namespace velmar
