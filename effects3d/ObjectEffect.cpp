#include "effects3d/ObjectEffect.h"

#include "effects2d/EffectPanel.h"
#include "effects3d/OpenGL.h"
#include "effects3d/PictureTexture.h"

#include <QPointer>

void ObjectEffect::awakeFromNib()
{
    setName(QT_TRANSLATE_NOOP("BaseEffect", "3D Objects"));
    setTips(QT_TRANSLATE_NOOP("BaseEffect", "3D Objects Texuture"));
    m_objectRotationEFF = {};
    m_drawObj = Sphere;
}

std::shared_ptr<BaseEffect> ObjectEffect::mycopy() const
{
    const auto copy = std::static_pointer_cast<ObjectEffect>(copyWithZone());
    copy->setRotationO(m_objectRotationEFF);
    copy->setObjectMode(m_drawObj);
    return copy;
}

void ObjectEffect::clearEffect()
{
    TurnedEffect::clearEffect();
    wasInit = false;
}

void ObjectEffect::reloadImage() { clearFilter(); } // the next drawing, which has a context, loads it

void ObjectEffect::initEffect() { objectsInit(); }

void ObjectEffect::objectsInit()
{
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LESS);
}

void ObjectEffect::draw()
{
    if (!wasInit)
        initEffect();
    wasInit = true;
    loadImage();
    glPushMatrix();
    objectsDraw();
    glPopMatrix();
    glFlush();
}

void ObjectEffect::objectsDraw()
{
    glLoadIdentity();
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    redraw();
    glPopMatrix();
    glFlush();
    glLoadIdentity();
}

void ObjectEffect::redraw()
{
    glClearColor(0, 0, 0, 0);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    if (!picture())
        return;
    glEnable(GL_DEPTH_TEST);
    glEnable(GL_CULL_FACE);
    glFrontFace(GL_CW);
    glDepthMask(GL_TRUE);
    glEnable(GL_TEXTURE_2D);
    picture()->bind();
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_DECAL);
    glPushMatrix();
    glRotatef(-0.5f * m_objectRotationEFF[1], 1, 0, 0);
    glRotatef(-0.5f * m_objectRotationEFF[0], 0, 1, 0);
    drawObject();
    glPopMatrix();
    glDisable(GL_TEXTURE_2D);
    glDisable(GL_CULL_FACE);
    glDisable(GL_DEPTH_TEST);
}

void ObjectEffect::drawObject() const
{
    switch (m_drawObj) {
    case Sphere:
        return drawSphereNumMinorRadius(64, 64, 0.8);
    case Cylinder:
        return drawCylinderNumMinorHeightRadius(32, 64, 1.0, 0.4);
    case Torus:
        return drawTorusNumMinorMajorRadiusMinorRadius(64, 64, 0.6, 0.2);
    case Cube:
        return drawCube();
    case Cone:
        return drawCone();
    case Pyramid:
        return drawPyramid();
    case Disk:
        return drawDisk();
    default:
        return;
    }
}

// --- controls ---

void ObjectEffect::buildControls(EffectPanel& panel)
{
    panel.addPopUp({tr("Object type:"), tr("The body that wears the picture")},
        {tr("Sphere"), tr("Cylinder"), tr("Torus"), tr("Cube"), tr("Cone"), tr("Pyramid"), tr("Disk")}, m_drawObj,
        action(&ObjectEffect::changeObjectType));
}

void ObjectEffect::registerObjectType(EffectControl* sender)
{
    registerUndo(tr("Change to Object Type"), &ObjectEffect::setObjectPopupSender, m_drawObj, QPointer(sender));
}

void ObjectEffect::changeObjectType(EffectControl* sender)
{
    registerObjectType(sender);
    m_drawObj = parameterValue<int>(sender->value());
    post();
}

void ObjectEffect::setObjectPopupSender(int type, EffectControl* sender)
{
    registerObjectType(sender);
    m_drawObj = type;
    if (sender)
        sender->setValue(type);
    post();
}

// --- favourites ---

void ObjectEffect::read(const CIDictionary& dictionary)
{
    TurnedEffect::read(dictionary);
    readNumbers(dictionary, "objectRotationEFF", m_objectRotationEFF);
    readNumber(dictionary, "drawObj", m_drawObj);
}

CIDictionary ObjectEffect::save() const
{
    CIDictionary dictionary = TurnedEffect::save();
    saveNumbers(dictionary, "objectRotationEFF", m_objectRotationEFF);
    dictionary["drawObj"] = m_drawObj;
    return dictionary;
}
