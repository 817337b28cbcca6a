#pragma once

#include "tools/make_pictures/landscape/Canvas.h"
#include "tools/make_pictures/landscape/Sky.h"
#include "tools/make_pictures/landscape/Terrain.h"
#include "tools/make_pictures/landscape/View.h"

/// What lies behind the meadow, seen by one camera: sky, mountains and forest. Water is left to be filled in.
class Backdrop {
public:
    /// Plants the forest. `terrain` and `sky` must outlive the backdrop.
    Backdrop(const Terrain& terrain, const Sky& sky, const Vec& towardsSun);
    void draw(Canvas& canvas, const View& view) const;

private:
    struct Tree {
        Vec foot;
        float height; // metres
        std::uint32_t seed;
        bool golden;
    };

    void plantRow(float z, float spacing, std::uint32_t row, std::vector<Tree>& planted) const;
    void drawColumn(Canvas& canvas, const View& view, int x) const;
    void shadeColumn(Canvas& canvas, const View& view, int x) const;
    void drawForest(Canvas& canvas, const View& view) const;
    Vec groundLight(const Vec& place, float footprint) const;
    Vec throughAir(const Vec& light, const Vec& place, const View& view) const;
    float airBetween(const Vec& place, const View& view) const;

    const Terrain& m_terrain;
    const Sky& m_sky;
    Vec m_towardsSun;
    std::vector<Tree> m_trees; // farthest first
};
