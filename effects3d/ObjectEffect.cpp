#include "effects3d/ObjectEffect.h"

#include "effects3d/OpenGL.h"
#include "effects3d/PictureTexture.h"

const EffectDeclaration& ObjectEffect::declaration() const
{
    static const EffectDeclaration declared{"ObjectEffect", QT_TRANSLATE_NOOP("BaseEffect", "3D Objects"),
        QT_TRANSLATE_NOOP("BaseEffect", "3D Objects Texuture"), {},
        {{"objectRotationEFF", &ObjectEffect::m_objectRotationEFF, {}, {.start = CIVector{0, 0, 0, 0}}},
            {"drawObj", &ObjectEffect::m_drawObj,
                {QT_TRANSLATE_NOOP("EffectPanel", "Object type:"),
                    QT_TRANSLATE_NOOP("EffectPanel", "The body that wears the picture"),
                    QT_TRANSLATE_NOOP("EffectPanel", "Object Type")},
                {.start = Sphere,
                    .titles = {QT_TRANSLATE_NOOP("EffectPanel", "Sphere"), QT_TRANSLATE_NOOP("EffectPanel", "Cylinder"),
                        QT_TRANSLATE_NOOP("EffectPanel", "Torus"), QT_TRANSLATE_NOOP("EffectPanel", "Cube"),
                        QT_TRANSLATE_NOOP("EffectPanel", "Cone"), QT_TRANSLATE_NOOP("EffectPanel", "Pyramid"),
                        QT_TRANSLATE_NOOP("EffectPanel", "Disk")}}},
            background(), sizeToApply()}};
    return declared;
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
    clearFrame();
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
