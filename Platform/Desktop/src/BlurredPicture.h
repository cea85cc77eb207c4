#pragma once

#include <QImage>

namespace velmar {

/// The picture at a quarter of its size, blurred until nothing in it can be read.
[[nodiscard]] QImage blurredPicture(const QImage &picture);

} // namespace velmar
