// Cutting the picture: the filter's corners, and the panels of the Image menu.
#include "WindowFixture.h"

#include "controls/crop/CropCanvas.h"
#include "controls/crop/StraightenCanvas.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "platform/chain/Baking.h"
#include "ui_MainWindow.h"
#include "widgets/Overlay.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>

#include <cmath>

namespace {

class CropTest : public WindowTest {
protected:
    MyImageView& view = *ui.pictureScrollView->imageView();

    CIRect rectangle() { return controller.getCurrentFilter()->valueForKey("inputRectangle").toVector().rect(); }
    void moveTo(CIPoint to)
    {
        const QPointF place = view.toWidget(to);
        QMouseEvent move(QEvent::MouseMove, place, view.mapToGlobal(place), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&view, &move);
    }
    void drag(CIPoint from, const std::vector<CIPoint>& way)
    {
        QTest::mousePress(&view, Qt::LeftButton, {}, view.toWidget(from).toPoint());
        for (CIPoint to : way)
            moveTo(to);
        QTest::mouseRelease(&view, Qt::LeftButton, {}, view.toWidget(way.back()).toPoint());
    }
};

TEST_F(CropTest, TheFiltersCornersStartAtThePicturesEdges)
{
    openPicture(pictureFile("a.png", 200, 100));
    pick("CICrop");
    EXPECT_EQ(rectangle(), (CIRect{0, 0, 200, 100}));
    EXPECT_EQ(controller.coreImageResult(false).extent(), (CIRect{0, 0, 200, 100})) << "nothing is cut off yet";
    drag({2, 2}, {{20, 10}, {40, 30}});
    const CIRect dragged = rectangle();
    EXPECT_NEAR(dragged.x, 40, 1e-6);
    EXPECT_NEAR(dragged.y, 30, 1e-6);
    EXPECT_NEAR(dragged.right(), 200, 1e-6) << "the opposite corner stays";
    EXPECT_EQ(controller.coreImageResult(false).extent(), dragged);
}

TEST_F(CropTest, ADragOfACornerIsOneUndoStep)
{
    openPicture(pictureFile("a.png", 200, 100));
    pick("CICrop");
    const qsizetype before = undo.undoActionNames().size();
    drag({2, 2}, {{5, 5}, {10, 10}, {15, 12}, {40, 30}});
    EXPECT_EQ(undo.undoActionNames().size(), before + 1);
    EXPECT_EQ(undo.undoActionName(), "Change to Crop Rectangle");
    undo.undo();
    EXPECT_EQ(rectangle(), (CIRect{0, 0, 200, 100}));
    undo.redo();
    EXPECT_NEAR(rectangle().x, 40, 1e-6);
    drag({40, 30}, {{40, 30}});
    QTest::mouseClick(&view, Qt::LeftButton, {}, view.toWidget({40, 30}).toPoint());
    EXPECT_LE(undo.undoActionNames().size(), before + 2) << "a mere click is no step";
}

TEST_F(CropTest, AHeldArrowKeyIsOneUndoStep)
{
    openPicture(pictureFile("a.png", 200, 100));
    pick("CICrop");
    const qsizetype before = undo.undoActionNames().size();
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Tab);
    for (int i = 0; i < 5; ++i) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Left, {}, {}, i > 0);
        QApplication::sendEvent(&view, &press);
    }
    QTest::keyRelease(&view, Qt::Key_Left);
    EXPECT_EQ(rectangle(), (CIRect{0, 0, 195, 100}));
    EXPECT_EQ(undo.undoActionNames().size(), before + 1);
}

TEST_F(CropTest, FileNamesWithTheMarksSignShowAsTheyAre)
{
    openPicture(pictureFile("a[*]b.png", 20, 10));
    EXPECT_EQ(window.windowTitle().count("[*][*]"), 1) << "which the platform shows as [*]";
    pick("CICrop");
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_TRUE(window.windowTitle().endsWith("b.png[*]"));
}

// --- Image > Crop… and Image > Straighten… ---

class CropPanelTest : public WindowTest {
protected:
    /// Every pixel another one: red tells the column, green the row from below.
    void openMap(int width, int height, CIFormat format = CIFormat::RGBA8)
    {
        CIBitmap bitmap(width, height, format, CIAlpha::Opaque);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                put(bitmap, x, y, {x, height - 1 - y, 7, 255});
        controller.document().rememberFormat(CIImage::fromBitmap(bitmap), format);
        controller.setBackgroundImage(CIImage::fromBitmap(bitmap));
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    static void put(CIBitmap& bitmap, int x, int row, const std::array<int, 4>& values)
    {
        for (std::size_t c = 0; c < 4; ++c) {
            const std::size_t i = std::size_t(x) * 4 + c;
            if (bitmap.format() == CIFormat::RGBA16)
                bitmap.mutableRow<std::uint16_t>(row)[i] = std::uint16_t(values[c] * 257);
            else
                bitmap.mutableRow<std::uint8_t>(row)[i] = std::uint8_t(values[c]);
        }
    }
    const CIBitmap& pixels() { return *bitmapOf(controller.backImage()); }
    /// That the picture is this part of what `openMap` made.
    void expectPart(const CIRect& part)
    {
        ASSERT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, part.width, part.height}));
        const CIBitmap& bitmap = pixels();
        for (int y = 0; y < bitmap.height(); ++y)
            for (int x = 0; x < bitmap.width(); ++x) {
                const int column = x + int(part.x), line = bitmap.height() - 1 - y + int(part.y);
                CIBitmap wanted(1, 1, bitmap.format());
                put(wanted, 0, 0, {column, line, 7, 255});
                ASSERT_EQ(std::memcmp(bitmap.row(y) + std::size_t(x) * bytesPerPixel(bitmap.format()), wanted.row(0),
                              bytesPerPixel(bitmap.format())),
                    0)
                    << column << ", " << line;
            }
    }
    void choose(const char* item)
    {
        action(item)->trigger();
        ASSERT_TRUE(Overlay::openIn(window)) << item;
        QCoreApplication::processEvents(); // its layout
    }
    template <class Part>
    Part& part(const char* name)
    {
        auto* found = window.findChild<Part*>(QLatin1String(name));
        EXPECT_TRUE(found) << name;
        return *found;
    }
    CropCanvas& canvas() { return part<CropCanvas>("cropCanvas"); }
    void drag(PictureCanvas& on, CIPoint from, CIPoint to)
    {
        const QPointF start = on.toWidget(from), end = on.toWidget(to);
        QTest::mousePress(&on, Qt::LeftButton, {}, start.toPoint());
        for (const double way : {0.5, 1.0}) {
            const QPointF place = start + (end - start) * way;
            QMouseEvent move(QEvent::MouseMove, place, on.mapToGlobal(place), Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(&on, &move);
        }
        QTest::mouseRelease(&on, Qt::LeftButton, {}, end.toPoint());
    }
    void type(QAbstractSpinBox& field, const QString& text)
    {
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, text + "\t");
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(window.focusWidget(), Qt::Key(key), modifiers);
        waitUntilIdle();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

TEST_F(CropPanelTest, KeepsThePixelsThatTheFrameHoldsInOneUndoStep)
{
    for (const CIFormat format : {CIFormat::RGBA8, CIFormat::RGBA16}) {
        openMap(200, 100, format);
        const qsizetype before = undo.undoActionNames().size();
        choose("actionCrop");
        EXPECT_EQ(canvas().crop(), (CIRect{0, 0, 200, 100}));
        drag(canvas(), {60, 30}, {120, 70}); // there is nothing to move yet
        EXPECT_EQ(canvas().crop(), (CIRect{60, 30, 60, 40}));
        QTest::mouseClick(&part<QPushButton>("cropResetBtn"), Qt::LeftButton);
        drag(canvas(), {0, 0}, {40, 30}); // the lower left corner
        drag(canvas(), {200, 60}, {150, 60}); // the right edge
        EXPECT_EQ(canvas().crop(), (CIRect{40, 30, 110, 70}));
        type(part<QSpinBox>("cropWidthField"), "100");
        EXPECT_EQ(canvas().crop(), (CIRect{45, 30, 100, 70})) << "about its middle";
        drag(canvas(), {90, 60}, {95, 40}); // the whole frame, as far down as there is picture
        EXPECT_EQ(canvas().crop(), (CIRect{50, 10, 100, 70}));
        press(Qt::Key_Return);
        EXPECT_FALSE(Overlay::openIn(window));
        expectPart({50, 10, 100, 70});
        EXPECT_EQ(pixels().format(), format);
        EXPECT_TRUE(controller.wasChanged());
        EXPECT_EQ(undo.undoActionName(), "Crop");
        EXPECT_EQ(undo.undoActionNames().size(), before + 1);
        perform(&Controller::undo);
        expectPart({0, 0, 200, 100});
        perform(&Controller::redo);
        expectPart({50, 10, 100, 70});
    }
}

TEST_F(CropPanelTest, KeepsItsProportionsAndIsMovedByKeys)
{
    openMap(200, 100);
    choose("actionCrop");
    auto& shapes = part<QComboBox>("cropShapeMenu");
    auto& upright = part<QCheckBox>("cropUprightBox");
    const std::pair<const char*, CIPoint> largest[] = {{"Square", {100, 100}}, {"3 : 2", {150, 100}},
        {"4 : 3", {133, 100}}, {"16 : 9", {178, 100}}, {"Golden Ratio", {162, 100}}, {"As the Picture", {200, 100}}};
    for (const auto& [name, size] : largest) {
        shapes.setCurrentText(name);
        EXPECT_EQ(CIPoint(canvas().crop().width, canvas().crop().height), size) << name;
    }
    shapes.setCurrentText("3 : 2");
    drag(canvas(), {25, 0}, {85, 10});
    EXPECT_NEAR(canvas().crop().width / canvas().crop().height, 1.5, 0.02) << "after a drag";
    type(part<QSpinBox>("cropHeightField"), "40");
    EXPECT_EQ(canvas().crop().width, 60) << "after typing";
    canvas().setCrop({50, 20, 90, 60});
    drag(canvas(), {140, 50}, {110, 50}); // the right edge
    EXPECT_EQ(canvas().crop(), (CIRect{50, 30, 60, 40})) << "about its middle";
    drag(canvas(), {80, 70}, {80, 300}); // the upper one
    EXPECT_EQ(canvas().crop(), (CIRect{28, 30, 105, 70})) << "as far as the picture reaches";
    QTest::mouseClick(&upright, Qt::LeftButton, {}, QPoint(8, upright.height() / 2));
    EXPECT_EQ(CIPoint(canvas().crop().width, canvas().crop().height), (CIPoint{67, 100}));

    shapes.setCurrentText("Free");
    QTest::mouseClick(&part<QPushButton>("cropResetBtn"), Qt::LeftButton);
    canvas().setFocus();
    press(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(canvas().crop(), (CIRect{0, 0, 190, 99}));
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(canvas().crop(), (CIRect{10, 1, 190, 99})) << "no farther than the picture";
    drag(canvas(), {100, 50}, {-500, 900});
    EXPECT_EQ(canvas().crop(), (CIRect{0, 1, 190, 99}));
}

TEST_F(CropPanelTest, ClosesTheWindowUntilItIsAnswered)
{
    openMap(200, 100);
    const CIImage before = controller.backImage();
    ui.listView->setFocus();
    choose("actionCrop");
    drag(canvas(), {0, 0}, {40, 30});
    for (const char* item : {"actionUndo", "actionRotateLeft", "actionCrop", "actionClearEffect", "actionSave"})
        EXPECT_FALSE(action(item)->isEnabled()) << item;
    EXPECT_TRUE(action("actionQuit")->isEnabled());
    EXPECT_FALSE(ui.listView->isEnabled());
    for (int i = 0; i < 30; ++i) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        ASSERT_TRUE(Overlay::openIn(window)->isAncestorOf(window.focusWidget())) << "the keyboard stays here";
    }
    press(Qt::Key_Escape);
    EXPECT_FALSE(Overlay::openIn(window));
    EXPECT_EQ(controller.backImage(), before);
    EXPECT_EQ(window.focusWidget(), ui.listView);
    EXPECT_TRUE(action("actionRotateLeft")->isEnabled());

    choose("actionCrop");
    openPicture(pictureFile("a.png", 20, 10));
    EXPECT_FALSE(Overlay::openIn(window)) << "it was for another picture";
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 20, 10}));
}

TEST_F(CropPanelTest, LevelsTheHorizonThatWasDrawn)
{
    constexpr int kWidth = 240, kHeight = 160;
    const double slope = std::tan(6 * M_PI / 180); // up to the right
    CIBitmap bitmap(kWidth, kHeight, CIFormat::RGBA8, CIAlpha::Opaque);
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x)
            put(bitmap, x, kHeight - 1 - y,
                y + 0.5 < 80 + (x + 0.5 - 120) * slope ? std::array{0, 90, 0, 255} : std::array{200, 220, 255, 255});
    controller.setBackgroundImage(CIImage::fromBitmap(bitmap));
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    choose("actionStraighten");
    auto& canvas = part<StraightenCanvas>("straightenCanvas");
    auto& angle = part<QDoubleSpinBox>("straightenField");
    drag(canvas, {20, 80 - 100 * slope}, {220, 80 + 100 * slope});
    EXPECT_NEAR(angle.value(), -6, 0.2);
    type(angle, "-6");
    press(Qt::Key_Return);
    EXPECT_EQ(undo.undoActionName(), "Straighten");
    const CIBitmap& level = pixels();
    EXPECT_NEAR(double(level.width()) / level.height(), 1.5, 0.02) << "the picture's own proportions";
    EXPECT_LT(level.width(), kWidth);
    EXPECT_EQ(level.alpha(), CIAlpha::Opaque) << "no empty corner is left";
    EXPECT_EQ(level.format(), CIFormat::RGBA8);
    for (int x = 0; x < level.width(); ++x) {
        const auto red = [&](int above) { // above the horizon
            return int(level.row<std::uint8_t>(level.height() / 2 - 1 - above)[std::size_t(4 * x)]);
        };
        ASSERT_NEAR(red(3), 200, 1) << x;
        ASSERT_NEAR(red(-4), 0, 1) << x;
    }
    perform(&Controller::undo);
    EXPECT_EQ(pixels().width(), kWidth);

    choose("actionStraighten");
    part<QCheckBox>("straightenFillBox").setChecked(false);
    part<QCheckBox>("straightenFineBox").setChecked(true);
    QTest::keyClick(&part<QWidget>("straightenSlider"), Qt::Key_End);
    EXPECT_EQ(part<QDoubleSpinBox>("straightenField").value(), 5) << "the fine range";
    type(part<QDoubleSpinBox>("straightenField"), "45");
    press(Qt::Key_Return);
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 283, 283})) << "all of the picture";
    EXPECT_EQ(pixels().row<std::uint8_t>(0)[3], 0) << "with transparent corners";
}

} // namespace
