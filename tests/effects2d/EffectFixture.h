#pragma once

#include "effects2d/CustomEffects.h"
#include "effects2d/EffectMaster.h"
#include "effects2d/GeneratedEffect.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/UndoManager.h"

#include <gtest/gtest.h>

#include <cstdlib>

struct FakeEffectMaster : EffectMaster {
    CIImage picture;
    UndoManager undo;

    FakeEffectMaster() { setMainController(this); }
    CIImage backImage() override { return picture; }
    UndoManager* undoManager() override { return &undo; }
};

/// A picture of one color, 0xffRRGGBB.
inline CIImage plainPicture(int width, int height, QRgb color)
{
    CIBitmap bitmap(width, height, CIFormat::BGRA8, CIAlpha::Opaque);
    for (int y = 0; y < height; ++y)
        for (std::uint32_t& pixel : bitmap.mutableRow<std::uint32_t>(y))
            pixel = color;
    return CIImage::fromBitmap(bitmap);
}

/// The first numbers that the C library draws after its start, as fractions.
inline std::vector<double> firstUniforms(int count)
{
    std::srand(1);
    std::vector<double> numbers;
    for (int i = 0; i < count; ++i)
        numbers.push_back((std::rand() & 0x7FFF) / 32767.0);
    return numbers;
}

/// How many random numbers `draw` takes. Leaves the generator where `draw` left it.
template <class Draw>
long randomCalls(Draw draw)
{
    std::srand(1);
    draw();
    const std::array<int, 4> after{std::rand(), std::rand(), std::rand(), std::rand()};
    std::srand(1);
    std::array<int, 4> window{std::rand(), std::rand(), std::rand(), std::rand()};
    long calls = 0;
    for (; window != after && calls < 20'000'000; ++calls)
        window = {window[1], window[2], window[3], std::rand()};
    return calls;
}

/// A working copy of the effect in a row of the list, as a selection makes it, and its layer.
template <class Effect = GeneratedEffect>
struct Working {
    explicit Working(int row)
    {
        std::srand(1);
        const auto prototypes = customEffectPrototypes();
        std::srand(1);
        effect = std::static_pointer_cast<Effect>(prototypes[std::size_t(row)]->mycopy());
    }
    Effect* operator->() const { return effect.get(); }
    Effect& operator*() const { return *effect; }
    const std::vector<quartz::Figure>& figures() const { return effect->effectImage()->figures(); }
    QImage image() const { return figures().at(0).image; }
    /// Draws the layer with the random numbers restarted.
    void draw()
    {
        std::srand(1);
        effect->initEffect();
    }

    std::shared_ptr<Effect> effect;
};

enum Row { kSimple, kLines, kHilbert, kPatchWork, kFlare, kPlasma, kMorphing, kSketch };
