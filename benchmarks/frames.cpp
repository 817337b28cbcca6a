// From a parameter change to a finished frame: frames [--megapixels N] [--maxima] [FILTER ...]
// --maxima: every slider at its upper end, instead of where it stands when the filter is picked.
#include "benchmarks/TestPicture.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

constexpr double kViewWidth = 1400, kViewHeight = 900;
constexpr int kFrames = 15;

/// Moves the filter's first number, or else its first vector, a little, as a drag would.
void nudge(CIFilter& filter, int frame, bool maxima)
{
    const double wave = 0.5 + 0.05 * std::sin(frame);
    for (const std::string& key : filter.inputKeys()) {
        const CIInputAttributes& input = *filter.attributesForKey(key);
        const CIValue standard = input.defaultValue;
        if (input.isNumber() && input.sliderMin && input.sliderMax) {
            const double middle = (*input.sliderMin + *input.sliderMax) / 2;
            const double value = maxima ? *input.sliderMax : standard.isNumber() ? standard.toDouble() : middle;
            filter.setValueForKey(value - (*input.sliderMax - *input.sliderMin) * 0.01 * wave, key);
            return;
        }
        if (standard.isVector() && standard.toVector().count() == 2) {
            filter.setValueForKey(CIVector{standard.toVector().X() + 10 * wave, standard.toVector().Y()}, key);
            return;
        }
    }
}

void raise(CIFilter& filter)
{
    for (const std::string& key : filter.inputKeys()) {
        const CIInputAttributes& input = *filter.attributesForKey(key);
        if (input.isNumber() && input.sliderMax)
            filter.setValueForKey(*input.sliderMax, key);
    }
}

void measure(const std::string& name, const CIImage& picture, double megapixels, bool maxima)
{
    const auto filter = bench::filter(name, picture);
    if (!filter) {
        std::fprintf(stderr, "frames: no filter %s\n", name.c_str());
        std::exit(2);
    }
    if (maxima)
        raise(*filter);
    const CIRect extent = picture.extent();
    const double scale = std::min({1.0, kViewWidth / extent.width, kViewHeight / extent.height});
    CIBitmap frame(int(extent.width * scale), int(extent.height * scale), CIFormat::BGRA8, CIAlpha::Premultiplied);
    frame.mutableRow(0);
    const CIContext context;
    std::vector<double> times;
    for (int i = -2; i < kFrames; ++i) { // two to warm up
        const double start = bench::milliseconds();
        nudge(*filter, i, maxima);
        const CIImage image = filter->outputImage();
        if (image.isNull())
            return;
        context.renderInto(frame, 0, frame.height(), image, scale);
        if (i >= 0)
            times.push_back(bench::milliseconds() - start);
    }
    std::ranges::sort(times);
    std::printf("%s\t%g\t%.2f\t%.2f\n", name.c_str(), megapixels, times[kFrames / 2], times[kFrames * 95 / 100]);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    std::vector<double> sizes{1, 12, 24, 100};
    std::vector<std::string> names;
    bool maxima = false;
    for (int i = 1; i < argc; ++i) {
        if (std::string(argv[i]) == "--megapixels" && i + 1 < argc)
            sizes = {std::max(0.01, std::atof(argv[++i]))};
        else if (std::string(argv[i]) == "--maxima")
            maxima = true;
        else
            names.emplace_back(argv[i]);
    }
    if (names.empty())
        names = CIFilter::filterNamesInCategory("");
    for (const double megapixels : sizes) {
        const int width = int(std::lround(std::sqrt(megapixels * 1.5e6))),
                  height = int(std::lround(megapixels * 1e6 / width));
        const CIImage picture = CIImage::fromBitmap(bench::testPicture(width, height));
        for (const std::string& name : names)
            measure(name, picture, megapixels, maxima);
    }
}
