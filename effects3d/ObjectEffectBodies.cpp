// The bodies. Seen from outside their faces go round counterclockwise; the frame shows what has the least z in front,
// so that on the screen they go round clockwise.
#include "effects3d/ObjectEffect.h"
#include "effects3d/OpenGL.h"

#include <array>
#include <cmath>
#include <memory>
#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;

struct DeleteQuadric {
    void operator()(GLUquadric* quadric) const { gluDeleteQuadric(quadric); }
};

std::unique_ptr<GLUquadric, DeleteQuadric> texturedQuadric()
{
    std::unique_ptr<GLUquadric, DeleteQuadric> quadric(gluNewQuadric());
    if (quadric) {
        gluQuadricTexture(quadric.get(), GL_TRUE);
        gluQuadricDrawStyle(quadric.get(), GLU_FILL);
    }
    return quadric;
}

void corner(double s, double t, double x, double y, double z)
{
    glTexCoord2d(s, t);
    glVertex3d(x, y, z);
}

} // namespace

void ObjectEffect::drawSphereNumMinorRadius(int numMajor, int numMinor, double radius)
{
    const double bandAngle = kPi / numMajor, segmentAngle = 2 * kPi / numMinor;
    for (int band = 0; band < numMajor; ++band) {
        glBegin(GL_TRIANGLE_STRIP);
        for (int j = 0; j <= numMinor; ++j) {
            const double azimuth = j * segmentAngle, s = double(j) / numMinor;
            for (const int edge : {band, band + 1}) {
                const double polar = bandAngle + edge * bandAngle; // begins one band below the pole
                const double x = std::sin(polar) * std::cos(azimuth), y = std::sin(polar) * std::sin(azimuth);
                const double z = std::cos(polar);
                glNormal3d(x, y, z);
                corner(s, double(edge) / numMajor, radius * x, radius * y, radius * z);
            }
        }
        glEnd();
    }
}

void ObjectEffect::drawCylinderNumMinorHeightRadius(int numMajor, int numMinor, double height, double radius)
{
    const double bandHeight = height / numMajor, segmentAngle = 2 * kPi / numMinor;
    for (int band = 0; band < numMajor; ++band) {
        const double top = height / 2 - band * bandHeight;
        glBegin(GL_TRIANGLE_STRIP);
        for (int j = 0; j <= numMinor; ++j) {
            const double angle = j * segmentAngle, s = double(j) / numMinor;
            const double x = std::cos(angle), y = std::sin(angle);
            glNormal3d(x, y, 0);
            corner(s, double(band) / numMajor, radius * x, radius * y, top);
            corner(s, double(band + 1) / numMajor, radius * x, radius * y, top - bandHeight);
        }
        glEnd();
    }
}

void ObjectEffect::drawTorusNumMinorMajorRadiusMinorRadius(
    int numMajor, int numMinor, double majorRadius, double minorRadius)
{
    const double ringAngle = 2 * kPi / numMajor, sideAngle = 2 * kPi / numMinor;
    for (int ring = 0; ring < numMajor; ++ring) {
        glBegin(GL_TRIANGLE_STRIP);
        for (int j = 0; j <= numMinor; ++j) {
            const double side = j * sideAngle, distance = majorRadius + minorRadius * std::cos(side);
            for (const int edge : {ring, ring + 1}) {
                const double turn = ringAngle + edge * ringAngle;
                glNormal3d(std::cos(turn) * std::cos(side), std::sin(turn) * std::cos(side), std::sin(side));
                corner(double(edge) / numMajor, double(j) / numMinor, distance * std::cos(turn),
                    distance * std::sin(turn), minorRadius * std::sin(side));
            }
        }
        glEnd();
    }
}

void ObjectEffect::drawCube()
{
    glTexCoord2d(0, 1); // what the last face of any cube leaves, so that the first frame is like all others
    glPushMatrix();
    DrawCubeFace(1.0);
    for (int i = 0; i < 3; ++i) {
        glRotated(90, 1, 0, 0);
        DrawCubeFace(1.0);
    }
    glRotated(90, 0, 1, 0);
    DrawCubeFace(1.0);
    glRotated(180, 0, 1, 0);
    DrawCubeFace(1.0);
    glPopMatrix();
}

/// Each texture coordinate is given after its corner and so belongs to the next one.
void ObjectEffect::DrawCubeFace(double side)
{
    const double e = side / 2;
    glBegin(GL_QUADS);
    glVertex3d(-e, -e, e);
    glTexCoord2d(0, 0);
    glVertex3d(e, -e, e);
    glTexCoord2d(1, 0);
    glVertex3d(e, e, e);
    glTexCoord2d(1, 1);
    glVertex3d(-e, e, e);
    glTexCoord2d(0, 1);
    glEnd();
}

void ObjectEffect::drawCone()
{
    if (const auto quadric = texturedQuadric())
        gluCylinder(quadric.get(), 0.6, 0.0, 1.0, 20, 20);
}

void ObjectEffect::drawPyramid()
{
    constexpr double e = 0.6;
    struct Place {
        double x, z;
    };
    constexpr std::array<Place, 5> around{{{-e, e}, {e, e}, {e, -e}, {-e, -e}, {-e, e}}}; // front, right, back, left
    glBegin(GL_TRIANGLES);
    for (std::size_t i = 0; i < 4; ++i) {
        corner(0.5, 1, 0, e, 0);
        corner(0, 0, around[i].x, -e, around[i].z);
        corner(1, 0, around[i + 1].x, -e, around[i + 1].z);
    }
    glEnd();
    glBegin(GL_QUADS);
    corner(0, 0, -e, -e, -e);
    corner(1, 0, e, -e, -e);
    corner(1, 1, e, -e, e);
    corner(0, 1, -e, -e, e);
    glEnd();
}

void ObjectEffect::drawDisk()
{
    if (const auto quadric = texturedQuadric())
        gluDisk(quadric.get(), 0.2, 1.0, 100, 20);
}
