// Makes the program's pictures: make_pictures FOLDER [name...]; without names, all of them.

#include "tools/make_pictures/Controls.h"
#include "tools/make_pictures/PictureFile.h"
#include "tools/make_pictures/Textures.h"

#include <vips/vips8>

#include <functional>
#include <iostream>
#include <set>

namespace {

struct Product {
    std::string name;
    std::function<void(const std::string& file)> make;
};

/// Each at one and at two pixels a point.
void addControlPictures(std::vector<Product>& products)
{
    for (const ControlPicture& picture : controlPictures())
        for (int scale : {1, 2}) {
            const std::string name = picture.name + (scale == 2 ? "@2x.png" : ".png");
            products.push_back(
                {name, [&picture, scale](const std::string& file) { writePng(picture.draw(scale), file); }});
        }
}

std::vector<Product> products()
{
    std::vector<Product> products = {
        {"smoothtexture.tiff", [](const std::string& file) { writeTiff(smoothTexture(), Depth::Sixteen, file); }},
        {"lightball.tiff", [](const std::string& file) { writeTiff(lightBall(), Depth::Eight, file); }},
        {"restrictedshine.tiff", [](const std::string& file) { writeTiff(restrictedShine(), Depth::Eight, file); }},
        {"colormap.tiff", [](const std::string& file) { writeTiff(colorMap(), Depth::Eight, file); }},
        {"mask.tiff", [](const std::string& file) { writeTiff(disintegrateMask(), Depth::Sixteen, file); }},
        {"16x16c.tif", [](const std::string& file) { writeTiff(controlPointMarker(), Depth::Eight, file); }},
    };
    addControlPictures(products);
    return products;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2 || VIPS_INIT(argv[0]) != 0) {
        std::cerr << "usage: make_pictures FOLDER [name...]\n";
        return 2;
    }
    const std::string folder = argv[1];
    std::set<std::string> wanted(argv + 2, argv + argc);
    const bool all = wanted.empty();
    try {
        for (const Product& product : products())
            if (all || wanted.erase(product.name) > 0) {
                std::cout << product.name << std::endl;
                product.make(folder + "/" + product.name);
            }
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
    for (const std::string& name : wanted)
        std::cerr << "no such picture: " << name << "\n";
    vips_shutdown();
    return wanted.empty() ? 0 : 2;
}
