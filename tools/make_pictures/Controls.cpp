#include "tools/make_pictures/Controls.h"

#include <array>

namespace {

struct Color {
    float red, green, blue, alpha;
};

constexpr Color grey(float alpha) { return {0.5f, 0.5f, 0.52f, alpha}; }
constexpr Color kAccent{149 / 255.0f, 132 / 255.0f, 224 / 255.0f, 1};
constexpr Color kWhite{1, 1, 1, 1};
constexpr Color kCloseBox{84 / 255.0f, 84 / 255.0f, 92 / 255.0f, 0.92f};
constexpr Color kPressedCloseBox{122 / 255.0f, 104 / 255.0f, 208 / 255.0f, 1};

struct Point {
    float x, y;
};

/// Draws in points, y down, on `scale` pixels a point. Edges are as soft as one pixel.
class Sheet {
public:
    Sheet(float width, float height, int scale)
        : m_raster(int(width * float(scale)), int(height * float(scale)), 4)
        , m_scale(float(scale))
    {
    }

    void roundedBox(float left, float top, float right, float bottom, float radius, Color color)
    {
        fill([=](Point p) { return boxDistance(p, left, top, right, bottom, radius); }, color);
    }
    /// A line along the inside of the box.
    void roundedFrame(float left, float top, float right, float bottom, float radius, float width, Color color)
    {
        fill(
            [=](Point p) {
                const float middle = boxDistance(p, left, top, right, bottom, radius) + width / 2;
                return std::fabs(middle) - width / 2;
            },
            color);
    }
    void stroke(const std::vector<Point>& points, float width, Color color)
    {
        fill(
            [&](Point p) {
                float nearest = 1e9f;
                for (std::size_t i = 1; i < points.size(); ++i)
                    nearest = std::min(nearest, segmentDistance(p, points[i - 1], points[i]));
                return nearest - width / 2;
            },
            color);
    }
    Raster take() { return std::move(m_raster); }

private:
    static float boxDistance(Point p, float left, float top, float right, float bottom, float radius)
    {
        const float x = std::fabs(p.x - (left + right) / 2) - (right - left) / 2 + radius;
        const float y = std::fabs(p.y - (top + bottom) / 2) - (bottom - top) / 2 + radius;
        return std::hypot(std::max(x, 0.0f), std::max(y, 0.0f)) + std::min(std::max(x, y), 0.0f) - radius;
    }
    static float segmentDistance(Point p, Point a, Point b)
    {
        const float dx = b.x - a.x, dy = b.y - a.y;
        const float t = std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / (dx * dx + dy * dy), 0.0f, 1.0f);
        return std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy);
    }

    /// `distance` answers how far outside a point lies, in points.
    template <class Distance>
    void fill(Distance distance, Color color)
    {
        for (int y = 0; y < m_raster.height; ++y)
            for (int x = 0; x < m_raster.width; ++x) {
                const Point p{(float(x) + 0.5f) / m_scale, (float(y) + 0.5f) / m_scale};
                blend(m_raster.at(x, y), color, std::clamp(0.5f - distance(p) * m_scale, 0.0f, 1.0f));
            }
    }
    static void blend(float* pixel, Color color, float coverage)
    {
        const float over = color.alpha * coverage, under = pixel[3] * (1 - over), alpha = over + under;
        if (alpha <= 0)
            return;
        const std::array<float, 3> components{color.red, color.green, color.blue};
        for (std::size_t i = 0; i < 3; ++i)
            pixel[i] = (components[i] * over + pixel[i] * under) / alpha;
        pixel[3] = alpha;
    }

    Raster m_raster;
    float m_scale;
};

// --- the favourites strip ---

/// A card around the thumbnail, which lies at (7, 17) and is 40 x 25 points.
Raster offButton(int scale)
{
    Sheet sheet(51, 50, scale);
    sheet.roundedBox(3, 13, 51, 46, 6, grey(0.16f));
    sheet.roundedFrame(3, 13, 51, 46, 6, 1, grey(0.30f));
    return sheet.take();
}

Raster onButton(int scale)
{
    Sheet sheet(51, 50, scale);
    Color tint = kAccent;
    tint.alpha = 0.45f;
    sheet.roundedBox(3, 13, 51, 46, 6, tint);
    sheet.roundedFrame(3, 13, 51, 46, 6, 2, kAccent);
    return sheet.take();
}

Raster closeBox(int scale, Color color)
{
    Sheet sheet(14, 14, scale);
    sheet.roundedBox(0, 0, 14, 14, 7, color);
    sheet.stroke({{4.5f, 4.5f}, {9.5f, 9.5f}}, 1.5f, kWhite);
    sheet.stroke({{9.5f, 4.5f}, {4.5f, 9.5f}}, 1.5f, kWhite);
    return sheet.take();
}

// --- the scroller: 12 points across ---

constexpr float kAcross = 12;
constexpr float kEnd = 7; // length of the parts at the ends of knob and slot

enum class Piece { Start, Middle, End }; // top or left, stretched, bottom or right
enum class Way { Up, Down, Left, Right };

/// A piece of a bar with round ends that leaves `margin` points on both sides.
Raster bar(int scale, bool upright, Piece piece, float margin, Color color)
{
    const float length = piece == Piece::Middle ? 2 : kEnd, beyond = 40;
    const float from = piece == Piece::Start ? margin : -beyond;
    const float to = piece == Piece::End ? length - margin : length + beyond;
    const float radius = (kAcross - 2 * margin) / 2;
    Sheet sheet(upright ? kAcross : length, upright ? length : kAcross, scale);
    if (upright)
        sheet.roundedBox(margin, from, kAcross - margin, to, radius, color);
    else
        sheet.roundedBox(from, margin, to, kAcross - margin, radius, color);
    return sheet.take();
}

template <bool upright, Piece piece>
Raster knob(int scale)
{
    return bar(scale, upright, piece, 3, grey(0.62f));
}

template <bool upright, Piece piece>
Raster slot(int scale)
{
    return bar(scale, upright, piece, 2, grey(0.10f));
}

template <Way way, bool on>
Raster arrow(int scale)
{
    Sheet sheet(kAcross, kAcross, scale);
    const float tip = 4.25f, base = 7.25f;
    std::vector<Point> chevron;
    switch (way) {
    case Way::Up:
        chevron = {{3, base}, {6, tip}, {9, base}};
        break;
    case Way::Down:
        chevron = {{3, kAcross - base}, {6, kAcross - tip}, {9, kAcross - base}};
        break;
    case Way::Left:
        chevron = {{base, 3}, {tip, 6}, {base, 9}};
        break;
    case Way::Right:
        chevron = {{kAcross - base, 3}, {kAcross - tip, 6}, {kAcross - base, 9}};
        break;
    }
    sheet.stroke(chevron, 1.5f, on ? kAccent : grey(0.85f));
    return sheet.take();
}

} // namespace

const std::vector<ControlPicture>& controlPictures()
{
    static const std::vector<ControlPicture> pictures = {
        {"off_button_50", offButton},
        {"on_button_50", onButton},
        {"off_x", [](int scale) { return closeBox(scale, kCloseBox); }},
        {"on_x", [](int scale) { return closeBox(scale, kPressedCloseBox); }},
        // The upright scroller
        {"knob_top", knob<true, Piece::Start>},
        {"knob_mid", knob<true, Piece::Middle>},
        {"knob_bot", knob<true, Piece::End>},
        {"srcl_top", slot<true, Piece::Start>},
        {"scrl_mid", slot<true, Piece::Middle>},
        {"scrl_bot", slot<true, Piece::End>},
        {"btn_up", arrow<Way::Up, false>},
        {"btn_down", arrow<Way::Down, false>},
        {"btn_up_on", arrow<Way::Up, true>},
        {"btn_down_on", arrow<Way::Down, true>},
        // The level one; up is to the right
        {"down_round_side", knob<false, Piece::Start>},
        {"middle_round_side", knob<false, Piece::Middle>},
        {"up_round_side", knob<false, Piece::End>},
        {"down_slider_part", slot<false, Piece::Start>},
        {"middle_slider_part", slot<false, Piece::Middle>},
        {"up_slider_part", slot<false, Piece::End>},
        {"off_pointer_down", arrow<Way::Left, false>},
        {"off_pointer_up", arrow<Way::Right, false>},
        {"on_pointer_down", arrow<Way::Left, true>},
        {"on_pointer_up", arrow<Way::Right, true>},
    };
    return pictures;
}
