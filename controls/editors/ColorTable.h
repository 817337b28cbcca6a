// Tables of colors and the files they come in: pure parts.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

using ColorTriple = std::array<double, 3>; // red, green, blue; display values, usually 0 to 1
using ColorRule = std::function<ColorTriple(const ColorTriple&)>;

/// What a .cube file holds: a color for each color (3D), or a value for each value of every component (1D).
struct ColorTable {
    std::string title;
    bool isCube = true;
    std::size_t side = 0; // entries along an edge, at least 2
    ColorTriple low{0, 0, 0}, high{1, 1, 1}; // the colors of the first and the last entry
    std::vector<ColorTriple> entries; // of a cube: red changes fastest

    /// Linear between the entries, the nearest beyond the ends.
    ColorTriple operator()(const ColorTriple& color) const;
};

/// What is wrong with a file. `line` counts from 1; 0 where no line is to blame.
struct ColorTableFault {
    enum class Reason {
        NoSize, // or no table at all
        TwoSizes,
        BadSize, // not 2 to 65536, or to 256 for a cube
        BadDomain,
        BadTitle,
        UnknownWord,
        BadNumbers, // not three finite numbers
        LateWord, // after the first entry
        TooFew,
        TooMany,
    };
    Reason reason;
    std::size_t line = 0;
};

/// Throws a ColorTableFault.
ColorTable parsedColorTable(std::string_view text);

/// Premultiplied opaque pixels of a cube, red changing fastest: what a rule for display values makes of the colors,
/// which stand at even distances in display values or in linear light.
std::vector<float> sampledCube(std::size_t side, bool inLight, const ColorRule& rule);
/// Such a cube with another side. Linear between the entries; with a multiple of the steps nothing is lost.
std::vector<float> resampledCube(const std::vector<float>& pixels, std::size_t side, std::size_t newSide);
