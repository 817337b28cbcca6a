#pragma once

#include "tools/make_pictures/landscape/Canvas.h"
#include "tools/make_pictures/landscape/Sky.h"
#include "tools/make_pictures/landscape/Terrain.h"
#include "tools/make_pictures/landscape/View.h"

/// What lies behind the meadow, seen by one camera: sky, mountains and forest. Water is left to be filled in.
class Backdrop {
public:
    Backdrop(const Terrain& terrain, const Sky& sky, const Vec& towardsSun)
        : m_terrain(terrain)
        , m_sky(sky)
        , m_towardsSun(towardsSun)
    {
    }
    void draw(Canvas& canvas, const View& view) const;

private:
    void drawColumn(Canvas& canvas, const View& view, int x) const;
    void shadeColumn(Canvas& canvas, const View& view, int x) const;
    void drawForest(Canvas& canvas, const View& view) const;
    Vec groundLight(const Vec& place, float footprint) const;
    Vec throughAir(const Vec& light, const Vec& place, const View& view) const;
    float airBetween(const Vec& place, const View& view) const;

    const Terrain& m_terrain;
    const Sky& m_sky;
    Vec m_towardsSun;
};
