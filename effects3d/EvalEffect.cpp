#include "effects3d/EvalEffect.h"

#include "effects2d/EffectPanel.h"
#include "effects3d/OpenGL.h"
#include "effects3d/PictureTexture.h"

#include <algorithm>
#include <cmath>

#include <QPointer>

namespace {

constexpr int kFirstCurve = 5; // y of the middle point of row 0
constexpr int kSecondCurve = 17; // of row 1

constexpr EvalEffect::Net kStandardNet{-0.5, -0.5, 0.5, 1, 0, 0.6, 0.5, 1, 0.5, -0.5, 0.5, 1, //
    -0.5, 0.5, -0.5, 1, 0, -0.6, -0.5, 1, 0.5, 0.5, -0.5, 1};

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

void EvalEffect::awakeFromNib()
{
    setName(QT_TRANSLATE_NOOP("BaseEffect", "Surface Rotate"));
    setTips(QT_TRANSLATE_NOOP("BaseEffect", "3D Surface Rotate"));
    m_objectRotation = {90, -45, 0, 0};
    m_borderColor = {1, 1, 1, 1};
    m_borderSize = 4;
    m_decal = GL_DECAL;
    m_decalColor = {1, 0, 0, 0};
    m_polygonFilled = true;
    m_point2 = kStandardNet;
}

std::shared_ptr<BaseEffect> EvalEffect::mycopy() const
{
    const auto copy = std::static_pointer_cast<EvalEffect>(copyWithZone());
    copy->setRotationE(m_objectRotation);
    copy->setBorderColor(m_borderColor);
    copy->setFilledMode(m_polygonFilled);
    copy->setPoints2(m_point2);
    copy->setDecalMode(m_decal);
    copy->setDecalColor(m_decalColor);
    return copy;
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

    glClearColor(0, 0, 0, 0);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
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

// --- controls ---

void EvalEffect::buildControls(EffectPanel& panel)
{
    // The sliders start at the whole part of their value; the surface keeps the value until they are moved.
    const auto start = [this](int index) { return std::trunc(m_point2[std::size_t(index)]); };
    panel.addSlider({tr("First Curve:"), tr("How far the lower edge bends")}, {.min = -1.2, .max = 1.0, .decimals = 2},
        start(kFirstCurve), action(&EvalEffect::changepoint5));
    panel.addSlider({tr("Second Curve:"), tr("How far the upper edge bends")}, {.min = -1.0, .max = 1.2, .decimals = 2},
        start(kSecondCurve), action(&EvalEffect::changepoint17));
    panel.addCheckBox({tr("Filled Poly:"), tr("A closed surface, or else a net of lines")}, m_polygonFilled,
        action(&EvalEffect::changepoligonFilled));
    EffectControl* tinted = panel.addCheckBox({tr("Colored Light:"), tr("Tints the picture with the color")},
        m_decal != float(GL_DECAL), action(&EvalEffect::changeDecal));
    panel.addColorWellBeside(*tinted, {tr("Light color"), tr("The color of the light")},
        CIColor(m_decalColor[0], m_decalColor[1], m_decalColor[2], m_decalColor[3]),
        action(&EvalEffect::changeDecalColor));
}

/// The next drawing sets OpenGL up with the new values.
void EvalEffect::changed()
{
    reloadImage();
    post();
}

void EvalEffect::registerPoint(int index, EffectControl* sender)
{
    registerUndo(index == kFirstCurve ? tr("Change to First Curve") : tr("Change to Second Curve"),
        &EvalEffect::setPointsIdxSender, m_point2[std::size_t(index)], index, QPointer(sender));
}

void EvalEffect::changePoint(int index, EffectControl* sender)
{
    clearFilter();
    registerPoint(index, sender);
    m_point2[std::size_t(index)] = sender->value().toFloat();
    changed();
}

void EvalEffect::changepoint5(EffectControl* sender) { changePoint(kFirstCurve, sender); }

void EvalEffect::changepoint17(EffectControl* sender) { changePoint(kSecondCurve, sender); }

void EvalEffect::setPointsIdxSender(double value, int index, EffectControl* sender)
{
    clearFilter();
    registerPoint(index, sender);
    m_point2[std::size_t(index)] = value;
    if (sender)
        sender->setValue(value);
    changed();
}

void EvalEffect::registerPolygonFilled(EffectControl* sender)
{
    registerUndo(tr("Change to Filled Poly"), &EvalEffect::setpolygonFilledSender, m_polygonFilled, QPointer(sender));
}

void EvalEffect::changepoligonFilled(EffectControl* sender)
{
    clearFilter();
    registerPolygonFilled(sender);
    m_polygonFilled = sender->value().toBool();
    changed();
}

void EvalEffect::setpolygonFilledSender(bool filled, EffectControl* sender)
{
    clearFilter();
    registerPolygonFilled(sender);
    m_polygonFilled = filled;
    if (sender)
        sender->setValue(filled);
    changed();
}

void EvalEffect::registerDecal(EffectControl* sender)
{
    registerUndo(tr("Change to Colored Light"), &EvalEffect::changeM_DecalSender, m_decal, QPointer(sender));
}

void EvalEffect::changeDecal(EffectControl* sender)
{
    clearFilter();
    registerDecal(sender);
    m_decal = float(sender->value().toBool() ? GL_MODULATE : GL_DECAL);
    changed();
}

void EvalEffect::changeM_DecalSender(float mode, EffectControl* sender)
{
    clearFilter();
    registerDecal(sender);
    m_decal = mode;
    if (sender)
        sender->setValue(mode != float(GL_DECAL));
    changed();
}

void EvalEffect::registerDecalColor(EffectControl* sender)
{
    registerUndo(tr("Change to Light Color"), &EvalEffect::setDecalColorSender, m_decalColor, QPointer(sender));
}

void EvalEffect::changeDecalColor(EffectControl* sender)
{
    clearFilter();
    registerDecalColor(sender);
    const CIColor color = sender->value().toColor();
    m_decalColor = {float(color.red()), float(color.green()), float(color.blue()), float(color.alpha())};
    changed();
}

void EvalEffect::setDecalColorSender(Color color, EffectControl* sender)
{
    clearFilter();
    registerDecalColor(sender);
    m_decalColor = color;
    if (sender)
        sender->setValue(CIColor(color[0], color[1], color[2], color[3]));
    changed();
}

// --- favourites ---

void EvalEffect::read(const CIDictionary& dictionary)
{
    TurnedEffect::read(dictionary);
    readNumbers(dictionary, "objectRotation", m_objectRotation);
    readNumbers(dictionary, "borderColor", m_borderColor);
    readNumber(dictionary, "borderSize", m_borderSize);
    readNumber(dictionary, "polygonFilled", m_polygonFilled);
    readNumbers(dictionary, "point2", m_point2);
    readNumber(dictionary, "decal", m_decal);
    readNumbers(dictionary, "decalColor", m_decalColor, 3); // the fourth is not stored
}

CIDictionary EvalEffect::save() const
{
    CIDictionary dictionary = TurnedEffect::save();
    saveNumbers(dictionary, "objectRotation", m_objectRotation);
    saveNumbers(dictionary, "borderColor", m_borderColor);
    dictionary["borderSize"] = m_borderSize;
    dictionary["polygonFilled"] = int(m_polygonFilled);
    saveNumbers(dictionary, "point2", m_point2);
    dictionary["decal"] = m_decal;
    saveNumbers(dictionary, "decalColor", m_decalColor, 3);
    return dictionary;
}
