// The picture as seen from elsewhere.
#include "platform/coreimage/graph/Projection.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

// What leans in every direction, inside a picture of 300 x 300 px.
const CIVector kTopLeft{60, 270}, kTopRight{270, 240}, kBottomRight{240, 60}, kBottomLeft{30, 30};

Quadrilateral cornersOf(const Values& in)
{
    return {
        in.point("inputBottomLeft"), in.point("inputBottomRight"), in.point("inputTopRight"), in.point("inputTopLeft")};
}

std::vector<CIInputAttributes> withCorners(std::vector<CIInputAttributes> inputs)
{
    inputs.push_back(fitted(position("inputTopLeft", "Top Left", {118, 484}), kTopLeft));
    inputs.push_back(fitted(position("inputTopRight", "Top Right", {646, 507}), kTopRight));
    inputs.push_back(fitted(position("inputBottomRight", "Bottom Right", {548, 140}), kBottomRight));
    inputs.push_back(fitted(position("inputBottomLeft", "Bottom Left", {155, 153}), kBottomLeft));
    return inputs;
}

std::vector<CIInputAttributes> withCrop(std::vector<CIInputAttributes> inputs)
{
    inputs.push_back(number("inputCrop", "Crop", InputKind::Boolean, {.standard = 1}));
    return inputs;
}

/// The picture's corners go to the four points.
CIImage perspective(const CIImage& source, const Quadrilateral& to)
{
    if (source.extent().isInfinite() || source.extent().isEmpty())
        return source;
    const auto map = Projection::between(Quadrilateral::of(source.extent()), to);
    return map ? projected(source, *map, to.bounds()) : CIImage();
}

const RecipeFilter perspectiveTransform{{.name = "CIPerspectiveTransform",
                                            .displayName = "Perspective Transform",
                                            .category = kCICategoryGeometryAdjustment,
                                            .usage = Video | HighDynamicRange,
                                            .inputs = withCorners({image()})},
    [](const Values& in) { return perspective(in.image(), cornersOf(in)); }};

/// Only what lies in inputExtent is taken, and its corners go to the points.
const RecipeFilter perspectiveTransformWithExtent{
    {.name = "CIPerspectiveTransformWithExtent",
        .displayName = "Perspective Transform with Extent",
        .category = kCICategoryGeometryAdjustment,
        .usage = Video | HighDynamicRange,
        .inputs = withCorners({image(), rectangle("inputExtent", "Extent", {0, 0, 300, 300})})},
    [](const Values& in) {
        const CIRect part = in.rect("inputExtent");
        const auto map = Projection::between(Quadrilateral::of(part), cornersOf(in));
        return map && !part.isEmpty() ? projected(in.image().cropped(part), *map, cornersOf(in).bounds()) : CIImage();
    }};

/// The four points become the corners of a rectangle as wide and high as the longer of the opposite sides.
const RecipeFilter perspectiveCorrection{{.name = "CIPerspectiveCorrection",
                                             .displayName = "Perspective Correction",
                                             .category = kCICategoryGeometryAdjustment,
                                             .usage = Video | HighDynamicRange,
                                             .inputs = withCrop(withCorners({image()}))},
    [](const Values& in) {
        const CIImage source = in.image();
        const Quadrilateral q = cornersOf(in);
        const auto apart = [](CIPoint a, CIPoint b) { return std::hypot(a.x - b.x, a.y - b.y); };
        const CIRect to{0, 0, std::max(apart(q.bottomLeft, q.bottomRight), apart(q.topLeft, q.topRight)),
            std::max(apart(q.bottomLeft, q.topLeft), apart(q.bottomRight, q.topRight))};
        const auto map = Projection::between(q, Quadrilateral::of(to));
        if (!map)
            return CIImage();
        const bool whole = !in.flag("inputCrop") && !source.extent().isInfinite();
        return projected(source, *map, whole ? map->mapRect(source.extent()) : to);
    }};

/// A direction in front of the camera: x to the right, y up, z into the picture.
struct Direction {
    double x, y, z;
};
Direction cross(const Direction& a, const Direction& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
double dot(const Direction& a, const Direction& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
/// Of length 1; nothing when it has no length.
std::optional<Direction> normalized(const Direction& d)
{
    const double length = std::sqrt(dot(d, d));
    return length > 1e-9 ? std::optional(Direction{d.x / length, d.y / length, d.z / length}) : std::nullopt;
}

/// Rows of a rotation: the directions that become right, up and forward.
struct Rotation {
    Direction right{1, 0, 0}, up{0, 1, 0}, forward{0, 0, 1};
    Projection matrix() const
    {
        return {{right.x, right.y, right.z, up.x, up.y, up.z, forward.x, forward.y, forward.z}};
    }
};

/// A camera of a focal length in millimeters, for a picture whose diagonal is that of 24 x 36 mm film.
struct Camera {
    Camera(const CIRect& frame_, double focalLength)
        : frame(frame_)
        , middle(frame.center())
        , focal(std::max(focalLength, 1.0) * std::hypot(frame.width, frame.height) / std::hypot(24, 36))
    {
    }
    Direction towards(CIPoint p) const { return {p.x - middle.x, p.y - middle.y, focal}; }
    /// The picture as the turned camera sees it.
    CIImage turned(const CIImage& image, const Projection& rotation) const
    {
        const Projection rays{{1, 0, -middle.x, 0, 1, -middle.y, 0, 0, focal}};
        const Projection map =
            rays.then(rotation).then({{1, 0, middle.x / focal, 0, 1, middle.y / focal, 0, 0, 1 / focal}});
        return projected(image, map, map.mapRect(frame));
    }
    CIRect frame;
    CIPoint middle;
    double focal; // px
};

CIInputAttributes focalLength()
{
    return scalar("inputFocalLength", "Focal Length", {.standard = 28, .sliderMin = 10, .sliderMax = 200});
}

/// Positive pitch looks up, positive yaw to the right, positive roll turns the picture counterclockwise.
const RecipeFilter perspectiveRotate{
    {.name = "CIPerspectiveRotate",
        .displayName = "Perspective Rotate",
        .category = kCICategoryGeometryAdjustment,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), focalLength(),
            fitted(angle("inputPitch", "Pitch",
                       {.standard = 0, .sliderMin = -M_PI / 4, .sliderMax = M_PI / 4, .identity = 0}),
                0.15),
            fitted(
                angle("inputYaw", "Yaw", {.standard = 0, .sliderMin = -M_PI / 4, .sliderMax = M_PI / 4, .identity = 0}),
                0.25),
            angle("inputRoll", "Roll", {.standard = 0, .sliderMin = -M_PI, .sliderMax = M_PI, .identity = 0})}},
    [](const Values& in) {
        const CIImage source = in.image();
        const double pitch = in.number("inputPitch"), yaw = in.number("inputYaw"), roll = in.number("inputRoll");
        if (source.extent().isInfinite() || source.extent().isEmpty() || (pitch == 0 && yaw == 0 && roll == 0))
            return source;
        const auto [c, s] = std::pair(std::cos(pitch), std::sin(pitch));
        const auto [cy, sy] = std::pair(std::cos(yaw), std::sin(yaw));
        const auto [cr, sr] = std::pair(std::cos(roll), std::sin(roll));
        const Projection rotation = Projection{{cy, 0, -sy, 0, 1, 0, sy, 0, cy}}
                                        .then({{1, 0, 0, 0, c, -s, 0, s, c}})
                                        .then({{cr, -sr, 0, sr, cr, 0, 0, 0, 1}});
        return Camera(source.extent(), in.number("inputFocalLength")).turned(source, rotation);
    }};

/// The smallest rotation that brings a direction to an axis; both of length 1. O. Rodrigues, 1840.
Projection rotationBetween(const Direction& from, const Direction& to)
{
    const Direction k = cross(from, to);
    const double c = std::max(dot(from, to), -0.999), f = 1 / (1 + c);
    return {{1 - f * (k.y * k.y + k.z * k.z), f * k.x * k.y - k.z, f * k.x * k.z + k.y, f * k.x * k.y + k.z,
        1 - f * (k.x * k.x + k.z * k.z), f * k.y * k.z - k.x, f * k.x * k.z - k.y, f * k.y * k.z + k.x,
        1 - f * (k.x * k.x + k.y * k.y)}};
}

enum class Keystone { Horizontal, Vertical, Combined };

/// Where two lines of the picture that are parallel in the world meet: the normals of the planes through the camera
/// and each of the lines have that direction in common.
std::optional<Direction> vanishing(const Camera& camera, CIPoint a, CIPoint b, CIPoint c, CIPoint d)
{
    const auto first = normalized(cross(camera.towards(a), camera.towards(b)));
    const auto second = normalized(cross(camera.towards(c), camera.towards(d)));
    return first && second ? normalized(cross(*first, *second)) : std::nullopt;
}

/// The rotation after which the opposite sides of the quadrilateral are parallel to the picture's.
std::optional<Projection> straightened(const Camera& camera, const Quadrilateral& q, Keystone which)
{
    auto up = vanishing(camera, q.bottomLeft, q.topLeft, q.bottomRight, q.topRight);
    auto right = vanishing(camera, q.topLeft, q.topRight, q.bottomLeft, q.bottomRight);
    if (!up || !right)
        return std::nullopt;
    if (up->y < 0)
        up = Direction{-up->x, -up->y, -up->z};
    if (right->x < 0)
        right = Direction{-right->x, -right->y, -right->z};
    if (which == Keystone::Vertical)
        return rotationBetween(*up, {0, 1, 0});
    if (which == Keystone::Horizontal)
        return rotationBetween(*right, {1, 0, 0});
    const double shared = dot(*up, *right);
    const auto upright = normalized({up->x - shared * right->x, up->y - shared * right->y, up->z - shared * right->z});
    if (!upright)
        return std::nullopt;
    return Rotation{*right, *upright, cross(*right, *upright)}.matrix();
}

struct KeystoneFilter : RecipeFilter {
    KeystoneFilter(std::string name, std::string displayName, Keystone which)
        : RecipeFilter({.name = std::move(name),
                           .displayName = std::move(displayName),
                           .category = kCICategoryGeometryAdjustment,
                           .usage = Video | HighDynamicRange,
                           .inputs = {image(), focalLength(), corner("inputTopLeft", "Top Left", kTopLeft),
                               corner("inputTopRight", "Top Right", kTopRight),
                               corner("inputBottomRight", "Bottom Right", kBottomRight),
                               corner("inputBottomLeft", "Bottom Left", kBottomLeft)}},
            [which](const Values& in) {
                const CIImage source = in.image();
                if (source.extent().isInfinite() || source.extent().isEmpty() || !in.has("inputTopLeft")
                    || !in.has("inputTopRight") || !in.has("inputBottomRight") || !in.has("inputBottomLeft"))
                    return source;
                const Camera camera(source.extent(), in.number("inputFocalLength"));
                const auto rotation = straightened(camera, cornersOf(in), which);
                return rotation ? camera.turned(source, *rotation) : source;
            })
    {
    }

private:
    static CIInputAttributes corner(std::string key, std::string displayName, const CIVector& telling)
    {
        return fitted(vector(std::move(key), std::move(displayName), {}, {}, InputKind::Position), telling);
    }
};

const KeystoneFilter keystoneHorizontal{
    "CIKeystoneCorrectionHorizontal", "Horizontal Keystone Correction", Keystone::Horizontal};
const KeystoneFilter keystoneVertical{
    "CIKeystoneCorrectionVertical", "Vertical Keystone Correction", Keystone::Vertical};
const KeystoneFilter keystoneCombined{
    "CIKeystoneCorrectionCombined", "Combined Keystone Correction", Keystone::Combined};

} // namespace
} // namespace ci
