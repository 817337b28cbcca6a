#pragma once

#include "effects2d/EffectControl.h"
#include "effects2d/EffectMaster.h"
#include "effects3d/EvalEffect.h"
#include "effects3d/MyOGLView.h"
#include "effects3d/ObjectEffect.h"
#include "platform/foundation/UndoManager.h"

#include <gtest/gtest.h>
#include <QTest>

/// A color as a letter: '.' transparent, r g b w (white) k (black), else '?'.
inline char letterOf(QRgb pixel)
{
    if (qAlpha(pixel) == 0)
        return '.';
    const auto isOn = [](int component) { return component > 240 ? 1 : component < 15 ? 0 : 8; };
    switch (isOn(qRed(pixel)) * 100 + isOn(qGreen(pixel)) * 10 + isOn(qBlue(pixel))) {
    case 0:
        return 'k';
    case 1:
        return 'b';
    case 10:
        return 'g';
    case 100:
        return 'r';
    case 111:
        return 'w';
    default:
        return '?';
    }
}

/// Four bands, from the top: red, green, blue, white.
inline CIImage bandsPicture(int width = 256, int height = 256)
{
    CIBitmap bitmap(width, height, CIFormat::BGRA8, CIAlpha::Opaque);
    constexpr std::array<std::uint32_t, 4> colors{0xffff0000, 0xff00ff00, 0xff0000ff, 0xffffffff};
    for (int y = 0; y < height; ++y)
        for (std::uint32_t& pixel : bitmap.mutableRow<std::uint32_t>(y))
            pixel = colors[std::size_t(4 * y / height)];
    return CIImage::fromBitmap(bitmap);
}

/// A view of 400 x 300 points with a picture of four bands.
struct SceneTest : testing::Test, EffectMaster, OGLViewMaster {
    CIImage picture = bandsPicture();
    UndoManager undo;
    std::shared_ptr<BaseEffect> effect;
    MyOGLView view;

    SceneTest()
    {
        setMainController(this);
        view.awakeFromNib();
        view.setController(this);
        view.resize(400, 300);
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
    }
    ~SceneTest() override
    {
        undo.removeAllActions();
        view.setController(nullptr);
    }

    CIImage backImage() override { return picture; }
    UndoManager* undoManager() override { return &undo; }
    BaseEffect* getCurrent3DEffect() override { return effect.get(); }
    QMenu* contextMenu() override { return nullptr; }

    template <class Effect>
    std::shared_ptr<Effect> select()
    {
        const auto prototype = std::make_shared<Effect>();
        prototype->awakeFromNib();
        const auto copy = std::static_pointer_cast<Effect>(prototype->mycopy());
        effect = copy;
        return copy;
    }
    QImage frame(QSize size = {400, 400}) { return view.drawnFrame(size, 1); }
    /// The color at a place of the scene: x and y from -1 to 1, up.
    static char at(const QImage& frame, double x, double y)
    {
        const double unit = std::min(frame.width(), frame.height()) / 2.0;
        return letterOf(frame.pixel(int(frame.width() / 2.0 + x * unit), int(frame.height() / 2.0 - y * unit)));
    }
    static bool isBlank(const QImage& frame)
    {
        for (int y = 0; y < frame.height(); ++y)
            for (int x = 0; x < frame.width(); ++x)
                if (frame.pixel(x, y) != 0)
                    return false;
        return !frame.isNull();
    }
};
