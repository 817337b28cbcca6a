#include "controls/picture/Histogram.h"

#include <algorithm>
#include <cmath>

double Histogram::meanLuma() const
{
    double sum = 0;
    for (std::size_t level = 0; level < luma.size(); ++level)
        sum += double(level) * luma[level];
    return pixels > 0 ? sum / 255 / pixels : 0;
}

double Histogram::share(int level) const { return pixels > 0 ? double(luma[std::size_t(level)]) / pixels : 0; }

Histogram histogramOf(const QImage& image, int most)
{
    Histogram counts;
    const double all = double(image.width()) * image.height();
    const int step = std::max(1, int(std::ceil(std::sqrt(all / most))));
    int shift = 0; // from row to row, lest upright stripes are seen at one phase only
    for (int y = step / 2; y < image.height(); y += step, shift = (shift + 5) % step) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = shift; x < image.width(); x += step) {
            QRgb pixel = row[x];
            if (qAlpha(pixel) == 0)
                continue;
            if (qAlpha(pixel) < 255)
                pixel = qUnpremultiply(pixel);
            const unsigned red = unsigned(qRed(pixel)), green = unsigned(qGreen(pixel)), blue = unsigned(qBlue(pixel));
            ++counts.red[red];
            ++counts.green[green];
            ++counts.blue[blue];
            ++counts.luma[(red * 13933 + green * 46871 + blue * 4732 + 32768) >> 16]; // 65536 in all
            ++counts.pixels;
        }
    }
    return counts;
}
