#include "tools/make_pictures/landscape/Canvas.h"

namespace {

void blend(Canvas& canvas, int x, int y, const Vec& color, float coverage, float away)
{
    const std::size_t index = canvas.index(x, y);
    if (coverage > 0 && canvas.distance[index] >= away)
        canvas.color[index] = mixed(canvas.color[index], color, std::min(coverage, 1.0f));
}

} // namespace

void drawStroke(Canvas& canvas, const Strip& strip, const Nib& from, const Nib& to, const Vec& color, float away)
{
    const float dx = to.x - from.x, dy = to.y - from.y, length = std::hypot(dx, dy);
    const float thickest = std::max(from.radius, to.radius) + 1;
    if (length < 1e-3f || std::max(from.x, to.x) + thickest < static_cast<float>(strip.first)
        || std::min(from.x, to.x) - thickest > static_cast<float>(strip.last))
        return;
    const bool steep = std::fabs(dy) >= std::fabs(dx);
    const float along0 = steep ? from.y : from.x, along1 = steep ? to.y : to.x, run = along1 - along0;
    const float across0 = steep ? from.x : from.y, acrossRun = steep ? dx : dy;
    const float slant = length / std::fabs(run);
    const int firstAlong = steep ? 0 : strip.first, lastAlong = steep ? canvas.height : strip.last;
    const int firstAcross = steep ? strip.first : 0, lastAcross = steep ? strip.last : canvas.height;
    const int start = std::max(firstAlong, static_cast<int>(std::floor(std::min(along0, along1))));
    const int end = std::min(lastAlong - 1, static_cast<int>(std::floor(std::max(along0, along1))));
    for (int along = start; along <= end; ++along) {
        const float t = std::clamp((static_cast<float>(along) + 0.5f - along0) / run, 0.0f, 1.0f);
        const float middle = across0 + acrossRun * t;
        const float radius = mixed(from.radius, to.radius, t) * slant, faint = std::min(1.0f, radius * 2);
        const float half = std::max(radius, 0.5f);
        const int low = std::max(firstAcross, static_cast<int>(std::floor(middle - half)));
        const int high = std::min(lastAcross - 1, static_cast<int>(std::floor(middle + half)));
        for (int across = low; across <= high; ++across) {
            const float left = static_cast<float>(across);
            const float covered = std::min(left + 1, middle + half) - std::max(left, middle - half);
            blend(canvas, steep ? across : along, steep ? along : across, color, covered * faint, away);
        }
    }
}

void drawEllipse(Canvas& canvas, const Strip& strip, const Ellipse& ellipse, const Vec& color, float away)
{
    const float reach = std::max(ellipse.longAxis, ellipse.wideAxis) + 1;
    const float c = std::cos(ellipse.angle), s = std::sin(ellipse.angle);
    const int left = std::max(strip.first, static_cast<int>(ellipse.x - reach));
    const int right = std::min(strip.last - 1, static_cast<int>(ellipse.x + reach));
    const int top = std::max(0, static_cast<int>(ellipse.y - reach));
    const int bottom = std::min(canvas.height - 1, static_cast<int>(ellipse.y + reach));
    const float thin = std::max(std::min(ellipse.longAxis, ellipse.wideAxis), 0.4f);
    for (int y = top; y <= bottom; ++y)
        for (int x = left; x <= right; ++x) {
            const float px = static_cast<float>(x) + 0.5f - ellipse.x, py = static_cast<float>(y) + 0.5f - ellipse.y;
            const float u = (px * c + py * s) / ellipse.longAxis, v = (py * c - px * s) / ellipse.wideAxis;
            const float outside = (std::hypot(u, v) - 1) * thin; // pixels, about
            blend(canvas, x, y, color, std::clamp(0.5f - outside, 0.0f, 1.0f), away);
        }
}
