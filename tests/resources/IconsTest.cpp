#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace {

QImage drawn(const QString& icon, int side)
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer renderer(":/icons/" + icon);
    EXPECT_TRUE(renderer.isValid());
    renderer.render(&painter);
    return image;
}

/// Icons of the window; the program's own icon and the marker have colors and grids of their own, as have
/// the few that style sheets use, which can't tint.
QStringList interfaceIcons()
{
    QStringList icons = QDir(":/icons").entryList({"*.svg"});
    icons.removeIf([](const QString& icon) {
        return icon.startsWith("io.github.") || icon == "marker.svg" || icon.endsWith("-on-dark.svg");
    });
    return icons;
}

} // namespace

TEST(InterfaceIcons, ShareOneGridAndOneColor)
{
    EXPECT_GE(interfaceIcons().size(), 36);
    for (const QString& icon : interfaceIcons()) {
        SCOPED_TRACE(icon.toStdString());
        EXPECT_EQ(QSvgRenderer(":/icons/" + icon).viewBox(), QRect(0, 0, 24, 24));
        const QImage image = drawn(icon, 96);
        int inked = 0;
        for (int y = 0; y < 96; ++y)
            for (int x = 0; x < 96; ++x) {
                const QRgb pixel = image.pixel(x, y);
                inked += qAlpha(pixel) > 128;
                EXPECT_EQ(pixel & 0xFFFFFF, 0u) << "a tint would not reach " << x << ", " << y;
                const bool margin = x < 2 || y < 2 || x > 93 || y > 93;
                EXPECT_TRUE(!margin || qAlpha(pixel) == 0) << "cut off at " << x << ", " << y;
            }
        EXPECT_GT(inked, 96 * 96 / 50);
    }
}

TEST(ProgramIcon, FillsItsSquareAndKeepsItsCornersClear)
{
    const QImage icon = drawn("io.github.lumivex.Lumivex.svg", 256);
    EXPECT_EQ(qAlpha(icon.pixel(0, 0)), 0);
    EXPECT_EQ(qAlpha(icon.pixel(128, 20)), 255);
    EXPECT_GT(qGray(icon.pixel(128, 128)), 220) << "the light in the middle";
}
