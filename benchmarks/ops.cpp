// Full-size operations, one line `op<TAB>size<TAB>ms` a timed run.
//
// Environment: BENCH_DIR (pictures pic_SIZE.pam, over_SIZE.pam), SIZES (12mp,24mp,view), ONLY (a regular expression of
// operations), REPEATS, BUDGET_S (seconds per operation). Lengths are those of full-size pictures; for the size "view"
// they shrink with the picture.
#include "benchmarks/TestPicture.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <iostream>
#include <regex>
#include <sstream>
#include <vector>

namespace {

std::string environment(const char* name, const char* otherwise)
{
    const char* value = std::getenv(name);
    return value && *value ? value : otherwise;
}

CIBitmap read(const std::string& name, int width, int height, CIAlpha alpha)
{
    std::ifstream file(environment("BENCH_DIR", "/tmp/bench") + "/" + name + ".pam", std::ios::binary);
    int w = 0, h = 0;
    for (std::string line; std::getline(file, line) && line != "ENDHDR";) {
        std::sscanf(line.c_str(), "WIDTH %d", &w);
        std::sscanf(line.c_str(), "HEIGHT %d", &h);
    }
    if (!file || w < 1 || h < 1)
        return bench::testPicture(width, height);
    CIBitmap bitmap(w, h, CIFormat::RGBA8, alpha);
    for (int y = 0; y < h; ++y)
        file.read(reinterpret_cast<char*>(bitmap.mutableRow(y)), std::streamsize(w) * 4);
    return bitmap;
}

/// One picture size: the picture, another with holes to lay over it, and how lengths shrink.
struct Shot {
    std::string size;
    CIImage picture, over;
    int width, height;
    double shrink;
};

using Values = std::initializer_list<std::pair<const char*, CIValue>>;

CIImage filtered(const char* name, const CIImage& image, Values values)
{
    const auto f = bench::filter(name, image);
    if (!f)
        return {};
    for (const auto& [key, value] : values)
        f->setValueForKey(value, key);
    return f->outputImage();
}

struct Operation {
    const char* name;
    std::function<CIImage(const Shot&, double)> image; // the second changes a little from run to run
    double outputScale = 1; // that it is rendered at
    double resultScale = 1; // of the size that it has by itself
};

CIImage sharpRim(const char* name, const Shot& s, Values values)
{
    return filtered(name, s.picture.clampedToExtent(), values).cropped(s.picture.extent());
}

CIImage sepia(const CIImage& image, double n) { return filtered("CISepiaTone", image, {{"inputIntensity", 1 - n}}); }
CIImage hue(const CIImage& image, double n) { return filtered("CIHueAdjust", image, {{"inputAngle", M_PI / 3 + n}}); }
CIImage exposure(const CIImage& image, double n) { return filtered("CIExposureAdjust", image, {{"inputEV", 0.7 + n}}); }
CIImage power(const CIImage& image, double n) { return filtered("CIGammaAdjust", image, {{"inputPower", 0.75 + n}}); }
CIImage vignette(const CIImage& image, double n)
{
    return filtered("CIVignette", image, {{"inputIntensity", 1 + n}, {"inputRadius", 1}});
}

CIImage distorted(const char* name, const Shot& s, const char* amount, double value)
{
    return filtered(name, s.picture,
        {{"inputCenter", CIVector{s.width / 2.0, s.height / 2.0}}, {"inputRadius", 0.5 * std::min(s.width, s.height)},
            {amount, value}});
}

CIImage turned(const char* name, const Shot& s, double radians)
{
    const double w = s.width / 2.0, h = s.height / 2.0;
    const CIAffineTransform about = CIAffineTransform::translation(-w, -h)
                                        .then(CIAffineTransform::rotation(radians))
                                        .then(CIAffineTransform::translation(w, h));
    return filtered(name, s.picture, {{"inputTransform", about}}).cropped(s.picture.extent());
}

std::vector<Operation> operations()
{
    const auto blur = [](double sigma) {
        return [sigma](const Shot& s, double n) {
            return sharpRim("CIGaussianBlur", s, {{"inputRadius", sigma * s.shrink + n}});
        };
    };
    const auto median = [](const char* name, double radius) {
        return [=](const Shot& s, double) {
            return sharpRim(name, s, {{"inputRadius", std::max(1.0, radius * s.shrink)}});
        };
    };
    const auto square = [](double r) {
        return [r](const Shot& s, double) {
            const double side = 2 * std::max(1.0, std::round(r * s.shrink)) + 1;
            return sharpRim("CIMorphologyRectangleMaximum", s, {{"inputWidth", side}, {"inputHeight", side}});
        };
    };
    return {
        {"gaussian_s10", blur(10)},
        {"gaussian_s40", blur(40)},
        {"box_r10",
            [](const Shot& s, double) {
                return sharpRim("CIBoxBlur", s, {{"inputRadius", 21 * s.shrink}});
            }},
        {"median_r1", [](const Shot& s, double) { return sharpRim("CIMedianFilter", s, {}); }},
        {"unsharp",
            [](const Shot& s, double n) {
                return sharpRim("CIUnsharpMask", s, {{"inputRadius", 2.5 * s.shrink}, {"inputIntensity", 0.5 + n}});
            }},
        {"motion_blur",
            [](const Shot& s, double n) {
                return sharpRim("CIMotionBlur", s, {{"inputRadius", 20 * s.shrink}, {"inputAngle", M_PI / 6 + n}});
            }},
        {"zoom_blur",
            [](const Shot& s, double n) {
                return filtered("CIZoomBlur", s.picture,
                    {{"inputCenter", CIVector{s.width / 2.0, s.height / 2.0}}, {"inputAmount", 2 + n}})
                    .cropped(s.picture.extent());
            }},
        {"pixellate",
            [](const Shot& s, double) {
                return filtered(
                    "CIPixellate", s.picture, {{"inputScale", 20 * s.shrink}, {"inputCenter", CIVector{0, 0}}});
            }},
        {"sepia", [](const Shot& s, double n) { return sepia(s.picture, n); }},
        {"hue_rotate", [](const Shot& s, double n) { return hue(s.picture, n); }},
        {"exposure", [](const Shot& s, double n) { return exposure(s.picture, n); }},
        {"gamma", [](const Shot& s, double n) { return power(s.picture, n); }},
        {"posterize",
            [](const Shot& s, double) {
                return filtered("CIColorPosterize", s.picture, {{"inputLevels", 6}});
            }},
        {"vignette", [](const Shot& s, double n) { return vignette(s.picture, n); }},
        {"chain5_colour",
            [](const Shot& s, double n) { return vignette(sepia(hue(power(exposure(s.picture, n), n), n), n), n); }},
        {"bump", [](const Shot& s, double n) { return distorted("CIBumpDistortion", s, "inputScale", 0.5 + n); }},
        {"pinch", [](const Shot& s, double n) { return distorted("CIPinchDistortion", s, "inputScale", 0.5 + n); }},
        {"twirl", [](const Shot& s, double n) { return distorted("CITwirlDistortion", s, "inputAngle", M_PI + n); }},
        {"perspective",
            [](const Shot& s, double n) {
                const double w = s.width, h = s.height; // y up
                return filtered("CIPerspectiveTransform", s.picture,
                    {{"inputTopLeft", CIVector{0.1 * w, 0.9 * h + n}}, {"inputTopRight", CIVector{0.95 * w, h}},
                        {"inputBottomRight", CIVector{w, 0}}, {"inputBottomLeft", CIVector{0, 0.1 * h}}})
                    .cropped(s.picture.extent());
            }},
        {"rotate30", [](const Shot& s, double n) { return turned("CIAffineTransform", s, M_PI / 6 + n); }},
        {"lanczos_50",
            [](const Shot& s, double) {
                return filtered("CILanczosScaleTransform", s.picture, {{"inputScale", 0.5}, {"inputAspectRatio", 1}});
            },
            1, 0.5},
        {"area_50", [](const Shot& s, double) { return s.picture; }, 0.5},
        {"sobel", [](const Shot& s, double) { return sharpRim("CISobelGradients", s, {}); }},
        {"conv3x3",
            [](const Shot& s, double) {
                return sharpRim("CIConvolution3X3", s, {{"inputWeights", CIVector{-2, -1, 0, -1, 1, 1, 0, 1, 2}}});
            }},
        {"halftone",
            [](const Shot& s, double n) {
                return filtered("CIDotScreen", s.picture,
                    {{"inputWidth", std::max(2.0, 8 * s.shrink)}, {"inputAngle", M_PI / 4 + n}});
            }},
        {"crystallize",
            [](const Shot& s, double) {
                return filtered("CICrystallize", s.picture, {{"inputRadius", 20 * s.shrink}});
            }},
        {"bloom",
            [](const Shot& s, double n) {
                return sharpRim("CIBloom", s, {{"inputRadius", 10 * s.shrink}, {"inputIntensity", 1 - n}});
            }},
        {"morph_max_rect_r5", square(5)},
        {"morph_max_rect_r20", square(20)},
        {"morph_max_disk_r5", median("CIMorphologyMaximum", 5)},
        {"morph_max_disk_r20", median("CIMorphologyMaximum", 20)},
        {"source_over", [](const Shot& s, double) { return s.over.compositedOver(s.picture); }},
    };
}

void measure(const Operation& op, const Shot& shot, int repeats, double budget)
{
    const CIContext context;
    const double scale = op.outputScale * op.resultScale;
    CIBitmap out(int(shot.width * scale), int(shot.height * scale), CIFormat::RGBA8, CIAlpha::Straight);
    out.mutableRow(0);
    const double begin = bench::milliseconds();
    for (int i = -1; i < 3 * repeats; ++i) { // one to warm up
        const double start = bench::milliseconds();
        const CIImage image = op.image(shot, 1e-4 * (i + 1));
        if (image.isNull())
            return;
        context.renderInto(out, 0, out.height(), image, op.outputScale);
        const double end = bench::milliseconds();
        if (i >= 0)
            std::printf("%s\t%s\t%.4f\tfloat\t2\n", op.name, shot.size.c_str(), end - start);
        std::fflush(stdout);
        if (i + 1 >= repeats && end - begin > 1000 * budget / 4)
            return;
    }
}

} // namespace

int main()
{
    const std::regex only(environment("ONLY", "."));
    const int repeats = std::max(1, std::atoi(environment("REPEATS", "5").c_str()));
    const double budget = std::atof(environment("BUDGET_S", "8").c_str());
    std::stringstream sizes(environment("SIZES", "12mp,24mp,view"));
    for (std::string size; std::getline(sizes, size, ',');) {
        const int width = size == "view" ? 1350
            : size == "12mp"             ? 4000
                                         : 6000,
                  height = width == 4000 ? 3000 : width * 2 / 3;
        const CIBitmap picture = read("pic_" + size, width, height, CIAlpha::Opaque);
        const Shot shot{size, CIImage::fromBitmap(picture),
            CIImage::fromBitmap(read("over_" + size, width, height, CIAlpha::Premultiplied)), picture.width(),
            picture.height(), size == "view" ? 0.225 : 1};
        for (const Operation& op : operations())
            if (std::regex_search(op.name, only))
                measure(op, shot, repeats, budget);
    }
}
