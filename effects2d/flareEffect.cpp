#include "effects2d/flareEffect.h"

#include "effects2d/Random.h"

#include <cmath>
#include <numbers>
#include <vector>

namespace {

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kMostRandom = 2147483647.0;
constexpr double kFading = 0.0625; // a spike is gone 16 pixels beside its line

struct Spike {
    double angle; // radians, counterclockwise from the right
    double length; // pixels
};

/// Spikes in the order of their angles, each at random in the first half of its sector.
std::vector<Spike> randomSpikes(int count, int radius)
{
    std::vector<Spike> spikes;
    const double sector = kTurn / count;
    for (int k = 0; k < count; ++k) {
        const double angle = k * sector + sector * 0.5 * (double(random()) / kMostRandom);
        const double length = std::min(double(radius), (double(random()) / kMostRandom + 0.2) * radius);
        spikes.push_back({angle, length});
    }
    return spikes;
}

/// 1 on the line of the spike, 0 from 16 pixels beside it on. (dx, dy) leads from the pixel to the center.
double closeness(const Spike& spike, double dx, double dy)
{
    const double away = std::abs(dy * std::cos(spike.angle) - dx * std::sin(spike.angle));
    return 1 - std::min(away * kFading, 1.0);
}

/// How bright a pixel beside the center is: 255 is white. (dx, dy) leads from the pixel to the center.
double brightness(const std::vector<Spike>& spikes, int dx, int dy)
{
    double a = std::atan2(-dy, -dx);
    if (a < 0)
        a += kTurn;
    const auto next = std::ranges::find_if(spikes, [&](const Spike& spike) { return spike.angle >= a; });
    const bool wraps = next == spikes.begin() || next == spikes.end();
    const std::size_t k = wraps ? spikes.size() - 1 : std::size_t(next - spikes.begin()) - 1;
    const Spike& before = spikes[k];
    const Spike& after = spikes[k + 1 < spikes.size() ? k + 1 : 0];

    double b = after.angle;
    if (a < before.angle)
        a += kTurn;
    if (b < before.angle)
        b += kTurn;
    const double length = before.length + (after.length - before.length) * (a - before.angle) / (b - before.angle);
    const double t = std::min(std::sqrt(double(dy) * dy + double(dx) * dx) / length, 1.0);
    const double fade = (1 - t) * (1 - t);
    const double s1 = closeness(before, dx, dy), s2 = closeness(after, dx, dy);
    return (s1 * s1 * 255 + s2 * s2 * 255) * fade;
}

} // namespace

const EffectDeclaration& flareEffect::declaration() const
{
    static const EffectDeclaration declared{"flareEffect", QT_TRANSLATE_NOOP("BaseEffect", "Flare Effect"),
        QT_TRANSLATE_NOOP("BaseEffect", "Flare Effect Generator"), kNotPlaced,
        {backgroundColor(CIColor(1, 1, 1, 0)), backgroundImage(),
            layerOpacity(QT_TRANSLATE_NOOP("EffectPanel", "Flare opacity:"), 50),
            {"linesCount", &flareEffect::m_linesCount,
                {QT_TRANSLATE_NOOP("EffectPanel", "Spikes count:"),
                    QT_TRANSLATE_NOOP("EffectPanel", "How many spikes the flare has")},
                {.start = 30, .min = 6, .max = 60, .continuous = false}},
            {"lineWidth", &flareEffect::m_lineWidth, {}, {.start = 1}}, drawingScale()}};
    return declared;
}

void flareEffect::drawMyself(quartz::Context& context, const QRectF& rect)
{
    placeAnchor(rect); // in numbers of the reduced canvas, as the lines do
    drawFlareRect(context, rect);
}

void flareEffect::drawFlareRect(quartz::Context& context, const QRectF& rect)
{
    const int width = int(rect.width()), height = int(rect.height()), radius = std::min(width, height);
    const double z = m_imageZoom;
    const int cx = int(std::clamp(m_startPT.x * z, -1e6, 1e6)), cy = int(std::clamp(m_startPT.y * z, -1e6, 1e6));
    const std::vector<Spike> spikes = randomSpikes(m_linesCount, radius);
    QImage image(width, height, QImage::Format_RGB32);
    if (image.isNull())
        return;
    for (int y = 0; y < height; ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(height - 1 - y));
        for (int x = 0; x < width; ++x) {
            double value = x == cx && y == cy ? 510 : 0;
            if (value == 0 && !spikes.empty())
                value = brightness(spikes, cx - x, cy - y);
            const int grey = int(std::lround(value > 0 ? std::min(value, 255.0) : 0.0)); // no number is black
            row[x] = qRgb(grey, grey, grey);
        }
    }
    context.drawImage(QRectF(0, 0, width, height), image);
}
