// "3D Objects": the picture around a solid body.
#pragma once

#include "effects3d/TurnedEffect.h"

/// One of seven bodies with the picture as its skin, turned with the mouse. Bodies are seen from outside only: where
/// they are open one looks through.
class ObjectEffect : public TurnedEffect {
public:
    enum ObjectType { Sphere, Cylinder, Torus, Cube, Cone, Pyramid, Disk };

    const EffectDeclaration& declaration() const override;

    void clearEffect() override;
    void initEffect() override;
    void objectsInit();
    void loadImage() override { loadPicture(); }
    void reloadImage() override;
    void draw() override;
    void objectsDraw();
    /// The scene; nothing but the cleared frame without a picture or for an unknown type.
    void redraw();

    // Plain setters, which neither register undo nor draw
    void setRotationO(const std::array<float, 4>& newRotation) { m_objectRotationEFF = newRotation; }
    void setObjectMode(int type) { m_drawObj = type; }
    const std::array<float, 4>& objectRotation() const { return m_objectRotationEFF; }
    int objectMode() const { return m_drawObj; }

    void changeObjectType(EffectControl* sender) { change(&m_drawObj, sender); }
    void setObjectPopupSender(int type, EffectControl* sender) { restore(&m_drawObj, type, sender); }

    // The bodies: the origin is their middle, z their axis, lengths are half frames.
    static void drawSphereNumMinorRadius(int numMajor, int numMinor, double radius);
    static void drawCylinderNumMinorHeightRadius(int numMajor, int numMinor, double height, double radius);
    static void drawTorusNumMinorMajorRadiusMinorRadius(
        int numMajor, int numMinor, double majorRadius, double minorRadius);
    static void drawCube();
    static void DrawCubeFace(double side);
    static void drawCone();
    static void drawPyramid();
    static void drawDisk();

protected:
    std::shared_ptr<BaseEffect> init() const override { return std::make_shared<ObjectEffect>(); }
    Rotation& rotation() override { return m_objectRotationEFF; }

private:
    void drawObject() const;

    std::array<float, 4> m_objectRotationEFF{}; // minus half degrees
    int m_drawObj = Sphere;
};
