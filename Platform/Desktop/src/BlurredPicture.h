#pragma once

#include <QImage>

namespace velmar {

/// Returns the picture at a quarter of its size, blurred until it is unreadable.
[[nodiscard]] QImage blurredPicture(const QImage &picture);

} // namespace velmar
