#include "effects3d/EvalEffect.h"

#include "effects3d/OpenGL.h"
#include "effects3d/PictureTexture.h"

#include <algorithm>

namespace {

/// 2 rows of 3 points (x, y, z, w).
CIVector standardNet()
{
    return {-0.5, -0.5, 0.5, 1, 0, 0.6, 0.5, 1, 0.5, -0.5, 0.5, 1, //
        -0.5, 0.5, -0.5, 1, 0, -0.6, -0.5, 1, 0.5, 0.5, -0.5, 1};
}

// The points of the color net overlap, and the last one begins with the net's last two numbers: the two that follow
// here make it white and opaque.
constexpr std::array<double, 10> kColorNet{0, 0, 0, 1, 1, 0, 1, 1, 1, 1};
constexpr std::array<double, 16> kTextureNet{0, 0, 0, 1, 0, 0, 1, 1, 0, 1, 0, 1, 1, 1, 1, 1};

constexpr int kCheckersWide = 2, kCheckersHigh = 4;

void uploadCheckers()
{
    constexpr std::array<float, 4> white{1, 1, 1, 1}, red{1, 0, 0, 1};
    constexpr std::array<std::array<float, 4>, 8> checkers{white, red, red, white, white, red, red, white};
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexImage2D(GL_TEXTURE_2D, 0, 4, kCheckersWide, kCheckersHigh, 0, GL_RGBA, GL_FLOAT, checkers.data());
}

void setLight()
{
    constexpr std::array<float, 4> ambient{0.1f, 0.1f, 0.1f, 1}, diffuse{1, 1, 1, 1}, position{0, 0, -150, 0};
    constexpr std::array<float, 4> front{1, 0.2f, 1, 1}, back{1, 1, 0.2f, 1}, surrounding{1, 1, 1, 1};
    glLightfv(GL_LIGHT0, GL_AMBIENT, ambient.data());
    glLightfv(GL_LIGHT0, GL_DIFFUSE, diffuse.data());
    glLightfv(GL_LIGHT0, GL_POSITION, position.data());
    glMaterialfv(GL_FRONT, GL_DIFFUSE, front.data());
    glMaterialfv(GL_BACK, GL_DIFFUSE, back.data());
    glLightModelfv(GL_LIGHT_MODEL_AMBIENT, surrounding.data());
    glLightModelf(GL_LIGHT_MODEL_TWO_SIDE, 1);
}

} // namespace

const EffectDeclaration& EvalEffect::declaration() const
{
    static const EffectDeclaration declared{"EvalEffect", QT_TRANSLATE_NOOP("BaseEffect", "Surface Rotate"),
        QT_TRANSLATE_NOOP("BaseEffect", "3D Surface Rotate"), {},
        {{"objectRotation", &EvalEffect::m_objectRotation, {}, {.start = CIVector{90, -45, 0, 0}}},
            {"borderColor", &EvalEffect::m_borderColor, {}, {.start = CIVector{1, 1, 1, 1}}},
            {"borderSize", &EvalEffect::m_borderSize, {}, {.start = 4, .copied = false}},
            {"point2", &EvalEffect::m_point2, {}, {.start = standardNet()}},
            {&EvalEffect::m_point2, kFirstCurve,
                {QT_TRANSLATE_NOOP("EffectPanel", "First Curve:"),
                    QT_TRANSLATE_NOOP("EffectPanel", "How far the lower edge bends")},
                {.min = -1.2, .max = 1, .decimals = 2, .startsWhole = true}},
            {&EvalEffect::m_point2, kSecondCurve,
                {QT_TRANSLATE_NOOP("EffectPanel", "Second Curve:"),
                    QT_TRANSLATE_NOOP("EffectPanel", "How far the upper edge bends")},
                {.min = -1, .max = 1.2, .decimals = 2, .startsWhole = true}},
            {"polygonFilled", &EvalEffect::m_polygonFilled,
                {QT_TRANSLATE_NOOP("EffectPanel", "Filled Poly:"),
                    QT_TRANSLATE_NOOP("EffectPanel", "A closed surface, or else a net of lines")},
                {.start = true, .states = {{0, 1}}}},
            {"decal", &EvalEffect::m_decal,
                {QT_TRANSLATE_NOOP("EffectPanel", "Colored Light:"),
                    QT_TRANSLATE_NOOP("EffectPanel", "Tints the picture with the color")},
                {.start = GL_DECAL, .states = {{GL_DECAL, GL_MODULATE}}}},
            {"decalColor", &EvalEffect::m_decalColor,
                {QT_TRANSLATE_NOOP("EffectPanel", "Light color"),
                    QT_TRANSLATE_NOOP("EffectPanel", "The color of the light"),
                    QT_TRANSLATE_NOOP("EffectPanel", "Light Color")},
                {.start = CIVector{1, 0, 0, 0}, .beside = true, .storage = 3}},
            background(), sizeToApply()}};
    return declared;
}

// --- drawing ---

bool EvalEffect::isTinted() const { return m_decal == float(GL_MODULATE); }

void EvalEffect::draw()
{
    initEffect();
    loadImage();
    evalDraw();
}

void EvalEffect::initEffect()
{
    evalInit();
    loadImage();
}

void EvalEffect::evalInit()
{
    glFrontFace(GL_CW);
    glEnable(GL_DEPTH_TEST);
    glMap2d(GL_MAP2_VERTEX_3, 0, 1, 12, 2, 0, 1, 4, 3, m_point2.data());
    glMap2d(GL_MAP2_TEXTURE_COORD_2, 0, 1, 8, 2, 0, 1, 4, 2, kTextureNet.data());
    glMap2d(GL_MAP2_COLOR_4, 0, 1, 4, 2, 0, 1, 2, 2, kColorNet.data());
    setLight();
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, isTinted() ? GL_MODULATE : GL_DECAL);
    uploadCheckers();
}

void EvalEffect::evalDraw()
{
    loadPicture();
    // The picture is what people expect to see on the surface; the checkers show only when there is none.
    if (picture())
        picture()->bind();

    clearFrame();
    glLoadIdentity();
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    glRotatef(0.5f * m_objectRotation[1], 1, 0, 0);
    glRotatef(0.5f * m_objectRotation[0], 0, 1, 0);
    RenderEval();
    glPopMatrix();
    glFlush();
}

void EvalEffect::RenderEval()
{
    glEnable(GL_TEXTURE_2D);
    glEnable(GL_MAP2_VERTEX_3);
    if (!isTinted()) // or the net's colors would win over the chosen one
        glEnable(GL_MAP2_COLOR_4);
    glPolygonMode(GL_FRONT_AND_BACK, m_polygonFilled ? GL_FILL : GL_LINE);
    glShadeModel(GL_SMOOTH);

    // The colors of the net are partly transparent, the surface isn't: colors first, then an alpha of one.
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_FALSE);
    DrawMapEval2Dv(0.05f, 0.033333335f);
    glDisable(GL_TEXTURE_2D);
    glDisable(GL_MAP2_COLOR_4);
    glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_TRUE);
    glDepthFunc(GL_LEQUAL);
    DrawMapEval2Dv(0.05f, 0.033333335f);
    glDepthFunc(GL_LESS);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    glDisable(GL_MAP2_VERTEX_3);
}

void EvalEffect::DrawMapEval2Dv(float du, float dv)
{
    if (isTinted())
        glColor3f(m_decalColor[0], m_decalColor[1], m_decalColor[3]); // blue is the color's alpha
    const auto vertex = [](float u, float v) {
        // v runs along the picture's width; the first row of the net is its lower edge.
        glTexCoord2f(v, 1 - u);
        glEvalCoord2f(u, v);
    };
    float lower = 0, upper = 0;
    do {
        upper = lower + dv;
        const float drawnUpper = std::min(upper, 1.0f);
        glBegin(GL_QUAD_STRIP);
        for (float u = 0; u <= 1; u += du) {
            vertex(u, lower);
            vertex(u, drawnUpper);
        }
        vertex(1, lower);
        vertex(1, drawnUpper);
        glEnd();
        lower = upper;
    } while (upper < 1);
}
