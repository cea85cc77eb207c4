#include "BlurredPicture.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace velmar {

namespace {

constexpr int shrinking = 4;
constexpr int radius = 9; // in pixels of the reduced picture
constexpr int passes = 3; // repeated box blurs approximate a Gaussian

/// Computes the mean of each pixel and its neighbours in a line. The ends are extended by their last pixel.
void blurLine(const std::vector<QRgb> &line, std::vector<QRgb> &result) {
    const int last = static_cast<int>(line.size()) - 1;
    const auto at = [&](int index) { return line[static_cast<std::size_t>(std::clamp(index, 0, last))]; };
    std::array<int, 3> sum{};
    const auto add = [&](QRgb pixel, int sign) {
        sum[0] += sign * qRed(pixel);
        sum[1] += sign * qGreen(pixel);
        sum[2] += sign * qBlue(pixel);
    };
    for (int index = -radius; index <= radius; ++index) {
        add(at(index), 1);
    }
    constexpr int width = 2 * radius + 1;
    for (int index = 0; index <= last; ++index) {
        result[static_cast<std::size_t>(index)] = qRgb(sum[0] / width, sum[1] / width, sum[2] / width);
        add(at(index + radius + 1), 1);
        add(at(index - radius), -1);
    }
}

void blurRows(QImage &image) {
    const auto width = static_cast<std::size_t>(image.width());
    std::vector<QRgb> line(width);
    std::vector<QRgb> result(width);
    for (int row = 0; row < image.height(); ++row) {
        auto *pixels = reinterpret_cast<QRgb *>(image.scanLine(row));
        line.assign(pixels, pixels + width);
        for (int pass = 0; pass < passes; ++pass) {
            blurLine(line, result);
            line.swap(result);
        }
        std::copy(line.begin(), line.end(), pixels);
    }
}

} // namespace

QImage blurredPicture(const QImage &picture) {
    if (picture.isNull()) {
        return {};
    }
    const QSize size = (picture.size() / shrinking).expandedTo({1, 1});
    QImage image = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                       .convertToFormat(QImage::Format_RGB32);
    blurRows(image);
    // Transposed, so that the columns are contiguous in memory.
    image = image.transformed(QTransform(0, 1, 1, 0, 0, 0));
    blurRows(image);
    return image.transformed(QTransform(0, 1, 1, 0, 0, 0));
}

} // namespace velmar
