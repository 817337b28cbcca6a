#pragma once

#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "tests/support/Input.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QTest>

struct FakeMaster : ImageViewMaster {
    CIImage picture;
    CIImage shown; // the picture if null
    std::shared_ptr<CIFilter> filter;
    bool nothingToShow = false;
    std::vector<CIValue> sent;
    std::vector<std::string> named; // the keys of steps
    std::vector<float> zooms;
    std::vector<QString> log;
    QMenu menu;
    int asked = 0;

    CIImage backImage() override { return picture; }
    CIImage coreImageResult(bool) override { return ++asked, nothingToShow ? CIImage() : shown ? shown : picture; }
    std::shared_ptr<CIFilter> getCurrentFilter() override { return filter; }
    bool isControlsPresent() override { return filter && !controlPoints(*filter).empty(); }
    void setFilterValueForKey(CIFilter& f, const CIValue& value, const std::string& key) override
    {
        f.setValueForKey(value, key);
        sent.push_back(value);
    }
    void setActionNameForFilterKey(const CIFilter&, const std::string& key) override { named.push_back(key); }
    void beginChange() override { log.push_back("begin"); }
    void endChange() override { log.push_back("end"); }
    QMenu* contextMenu() override { return &menu; }
    void updateZoommWithDelta(double delta) override { zooms.push_back(float(delta)); }
    void setZoom(float zoom) override { zooms.push_back(zoom); }
    void takeDroppedFile(const QString& path) override { log.push_back("dropped " + path); }
};

/// Red and green tell the column and the row from below; neighbors differ by far, so that blending is noticed.
inline QColor patternColor(int x, int y) { return QColor((x * 37) & 255, (y * 53) & 255, (x + y) % 2 ? 220 : 30); }

inline CIImage pattern(int width, int height, int block = 1)
{
    CIBitmap bitmap(width, height, CIFormat::RGBA8, CIAlpha::Opaque);
    for (int row = 0; row < height; ++row) {
        const auto pixels = bitmap.mutableRow<std::uint8_t>(row);
        for (int x = 0; x < width; ++x) {
            const QColor c = patternColor(x / block, (height - 1 - row) / block);
            const std::uint8_t rgba[] = {std::uint8_t(c.red()), std::uint8_t(c.green()), std::uint8_t(c.blue()), 255};
            std::copy(std::begin(rgba), std::end(rgba), pixels.begin() + 4 * x);
        }
    }
    return CIImage::fromBitmap(bitmap);
}

inline int difference(QColor a, QColor b)
{
    return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
}

/// A window with nothing but the view, 400 x 300 points of it visible.
class ImageViewTest : public testing::Test {
protected:
    void SetUp() override
    {
        window.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        window.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        window.resize(400, 300);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        window.activateWindow();
        view.setController(&master);
    }

    void open(const CIImage& picture, float zoom = 1)
    {
        master.picture = picture;
        view.setZoom(zoom);
        view.setNeedsDisplay();
    }
    void edit(const char* filter)
    {
        master.filter = CIFilter::filterWithName(filter);
        master.filter->setDefaults();
    }

    QImage shown()
    {
        EXPECT_TRUE(view.waitForFrame());
        return view.grab().toImage();
    }
    QColor colorAt(const QImage& image, QPointF widget) const
    {
        const QPointF device = widget * view.devicePixelRatioF();
        return image.pixelColor(int(std::floor(device.x())), int(std::floor(device.y())));
    }
    QPoint at(double x, double y) const { return view.toWidget({x, y}).toPoint(); }

    void moveMouse(QPointF to, Qt::MouseButtons held = Qt::NoButton) { input::moveMouse(view, to, held); }

    FakeMaster master;
    PictureScrollView window;
    MyImageView& view = *window.imageView();
};
