// Two pictures become one, and texts and codes are laid onto the picture.
#include "WindowFixture.h"

#include "app/catalogue/OutlineView.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "platform/chain/Baking.h"
#include "platform/chain/Layers.h"
#include "platform/quartz/TextRenderer.h"
#include "ui_MainWindow.h"
#include "widgets/DocPageControl.h"
#include "widgets/onlyTextClosedButton.h"
#include "widgets/PanelPopUp.h"
#include "widgets/rows/TextRow.h"
#include "widgets/ValueSlider.h"

#include <QApplication>
#include <QFileDialog>
#include <QMimeData>
#include <QMouseEvent>
#include <QTest>

#include <stdexcept>

namespace {

class SecondPictureTest : public WindowTest {
protected:
    MyImageView& view = *ui.pictureScrollView->imageView();

    static CIImage plain(int width, int height, const std::array<std::uint8_t, 3>& rgb)
    {
        CIBitmap bitmap(width, height, CIFormat::RGBA8, CIAlpha::Opaque);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const auto pixel = bitmap.mutableRow<std::uint8_t>(y).subspan(std::size_t(4 * x), 4);
                std::copy(rgb.begin(), rgb.end(), pixel.begin());
                pixel[3] = 255;
            }
        return CIImage::fromBitmap(bitmap);
    }
    QString savedPicture(const QString& name, const QColor& color, int width, int height)
    {
        QImage picture(width, height, QImage::Format_RGB32);
        picture.fill(color);
        EXPECT_TRUE(picture.save(folder.filePath(name)));
        return folder.filePath(name);
    }
    /// The result's pixel whose lower left corner is there.
    QColor resultAt(int x, int y)
    {
        const CIImage one =
            controller.coreImageResult(false).transformed(CIAffineTransform::translation(-x, -y)).cropped({0, 0, 1, 1});
        const CIBitmap bitmap = renderedBitmap(*controller.document().context(), one, CIFormat::RGBA8);
        if (bitmap.isNull())
            return Qt::transparent;
        const auto p = bitmap.row<std::uint8_t>(0);
        return {p[0], p[1], p[2], p[3]};
    }
    template <class Part>
    Part& control(const QString& accessibleName)
    {
        QCoreApplication::processEvents(); // the panel is built anew
        for (Part* part : ui.placeCntrlView->findChildren<Part*>())
            if (part->accessibleName() == accessibleName)
                return *part;
        throw std::runtime_error(accessibleName.toStdString());
    }
    void choose(PanelPopUp& menu, int index)
    {
        menu.setFocus();
        QTest::keyClick(&menu, Qt::Key_Home);
        for (int i = 0; i < index; ++i)
            QTest::keyClick(&menu, Qt::Key_Down);
        ASSERT_EQ(menu.currentIndex(), index);
    }
    void drag(CIPoint from, CIPoint to)
    {
        const QPointF start = view.toWidget(from), end = view.toWidget(to);
        QTest::mousePress(&view, Qt::LeftButton, {}, start.toPoint());
        for (const double way : {0.3, 0.6, 1.0}) {
            const QPointF place = start + (end - start) * way;
            QMouseEvent move(QEvent::MouseMove, place, view.mapToGlobal(place), Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(&view, &move);
        }
        QTest::mouseRelease(&view, Qt::LeftButton, {}, end.toPoint());
    }
    CIRect frame()
    {
        const std::vector<FreeLayer> layers = freeLayers(*controller.getCurrentFilter(), controller.getBgImageExtent());
        EXPECT_EQ(layers.size(), 1u);
        return layers.empty() ? CIRect() : layers.front().frame();
    }
    qsizetype steps() { return undo.undoActionNames().size(); }
};

TEST_F(SecondPictureTest, BlendsAPictureThatTheFileMenuOpens)
{
    controller.setBackgroundImage(plain(200, 100, {200, 0, 0}));
    ASSERT_TRUE(action("actionOpenSecond")->isEnabled());
    action("actionOpenSecond")->trigger();
    auto* panel = window.findChild<QFileDialog*>();
    ASSERT_TRUE(panel);
    const QString file = savedPicture("second.png", QColor(0, 0, 200), 50, 50);
    panel->setDirectory(folder.path());
    panel->selectFile(file);
    QMetaObject::invokeMethod(panel, "accept");
    ASSERT_TRUE(QTest::qWaitFor([&] { return controller.getCurrentFilter() != nullptr; }));
    waitUntilIdle();

    EXPECT_EQ(controller.getCurrentFilter()->name(), "CISourceOverCompositing");
    EXPECT_EQ(ui.listView->selectedItem(),
        rowOf("CISourceOverCompositing").data(OutlineModel::ItemRole).value<const OutlineItem*>());
    EXPECT_EQ(resultAt(100, 50), QColor(0, 0, 200)) << "as large as it is seen whole";
    EXPECT_EQ(resultAt(60, 95), QColor(0, 0, 200));
    EXPECT_EQ(resultAt(40, 50), QColor(200, 0, 0));
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 200, 100})) << "the picture is still the picture";

    choose(control<PanelPopUp>("Placing"), int(Placing::Fill));
    EXPECT_EQ(resultAt(5, 5), QColor(0, 0, 200));
    EXPECT_EQ(controller.coreImageResult(false).extent(), (CIRect{0, 0, 200, 100})) << "what is beyond is cut off";
    undo.undo();
    EXPECT_EQ(resultAt(5, 5), QColor(200, 0, 0));

    pick("CIAdditionCompositing");
    EXPECT_EQ(resultAt(100, 50), QColor(200, 0, 200)) << "other filters that blend take the same";
    pick("CIMix");
    EXPECT_EQ(resultAt(100, 50), QColor(0, 0, 200));
    EXPECT_FALSE(hasLayerAmount(*controller.getCurrentFilter())) << "it has an amount of its own";
}

TEST_F(SecondPictureTest, IsPlacedOnThePictureInOneStepAGesture)
{
    controller.setBackgroundImage(plain(300, 200, {0, 0, 0}));
    perform(&Controller::takeSecondPicture, savedPicture("second.png", Qt::white, 30, 20));
    EXPECT_FALSE(view.canvasPoints().size()) << "what fits need not be dragged";
    qsizetype before = steps();
    choose(control<PanelPopUp>("Placing"), int(Placing::Free));
    EXPECT_EQ(frame(), (CIRect{0, 0, 300, 200}));
    ASSERT_EQ(view.canvasPoints().size(), 5) << "the middle and the corners";

    before = steps();
    drag({298, 198}, {148, 98}); // the upper right corner is within reach
    EXPECT_EQ(steps(), before + 1);
    EXPECT_NEAR(frame().width, 150, 3);
    EXPECT_NEAR(frame().height, 100, 2) << "in proportion";
    EXPECT_NEAR(frame().x, 0, 1e-6) << "the opposite corner stays";
    const CIRect small = frame();
    drag({40, 50}, {140, 80}); // anywhere in it
    EXPECT_EQ(steps(), before + 2);
    EXPECT_NEAR(frame().x, small.x + 100, 1) << "it doesn't jump to the pointer";
    EXPECT_NEAR(frame().y, small.y + 30, 1);
    EXPECT_EQ(resultAt(int(small.x) + 110, int(small.y) + 40), QColor(Qt::white));
    EXPECT_EQ(resultAt(20, 20), QColor(Qt::black));
    controller.undo();
    EXPECT_EQ(frame(), small);
    controller.undo();
    EXPECT_EQ(frame(), (CIRect{0, 0, 300, 200}));

    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Tab);
    QTest::keyClick(&view, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(frame().x, 10);
    QTest::keyClick(&view, Qt::Key_Tab);
    QTest::keyClick(&view, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_LT(frame().width, 300);
    EXPECT_EQ(frame().x, 10);

    choose(control<PanelPopUp>("Placing"), int(Placing::Tile));
    EXPECT_EQ(resultAt(2, 2), QColor(Qt::white));
}

TEST_F(SecondPictureTest, AmountApplyFavouritesAndSessionsKnowIt)
{
    controller.setBackgroundImage(plain(40, 40, {0, 0, 0}));
    perform(&Controller::takeSecondPicture, savedPicture("second.png", Qt::white, 20, 20));
    const qsizetype before = steps();
    auto& amount = control<ValueSlider>("Amount");
    const QPoint middle = amount.rect().center();
    QTest::mousePress(&amount, Qt::LeftButton, {}, middle + QPoint(20, 0));
    QTest::mouseMove(&amount, middle);
    QTest::mouseRelease(&amount, Qt::LeftButton, {}, middle);
    EXPECT_EQ(steps(), before + 1);
    EXPECT_NEAR(resultAt(20, 20).red(), 188, 8) << "half of the light";

    const QColor mixed = resultAt(20, 20);
    controller.addFavourite();
    QTest::qWait(0);
    pick("CIColorInvert");
    auto* favourite = ui.m_pageController->findChild<onlyTextClosedButton*>();
    ASSERT_TRUE(favourite);
    controller.filterChanged(favourite);
    EXPECT_EQ(resultAt(20, 20), mixed);
    perform(&Controller::applyBtn);
    ASSERT_FALSE(controller.getCurrentFilter());
    const CIBitmap applied = controller.createObjectImage();
    EXPECT_NEAR(applied.row<std::uint8_t>(20)[80], mixed.red(), 1);
}

TEST_F(SecondPictureTest, IsDroppedWithAlt)
{
    controller.setBackgroundImage(plain(40, 40, {0, 0, 0}));
    pick("CIDisplacementDistortion");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(savedPicture("second.png", Qt::white, 20, 20))});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::AltModifier);
    QApplication::sendEvent(&view, &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::AltModifier);
    QApplication::sendEvent(&view, &drop);
    waitUntilIdle();
    EXPECT_EQ(controller.getBgImageExtent().width, 40);
    ASSERT_TRUE(controller.getCurrentFilter());
    EXPECT_EQ(controller.getCurrentFilter()->name(), "CIDisplacementDistortion") << "it takes a second picture itself";
    EXPECT_EQ(controller.getCurrentFilter()->valueForKey("inputDisplacementImage").toImage().extent().width, 20);
    EXPECT_EQ(undo.undoActionName(), "Open as Second Picture");
    EXPECT_EQ(control<PanelPopUp>("Placing").currentIndex(), int(Placing::Fit));
    undo.undo();
    EXPECT_EQ(controller.getCurrentFilter()->valueForKey("inputDisplacementImage").toImage().extent().width, 40);
}

TEST_F(SecondPictureTest, TextIsTypedAndLaidWhereItIsWanted)
{
    CITextRenderer::install(std::make_shared<TextRenderer>());
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    controller.setBackgroundImage(plain(400, 300, {255, 255, 255}));
    pick("CITextImageGenerator");
    auto& field = control<TextField>("Text");
    field.setFocus();
    qsizetype before = steps();
    QTest::keyClicks(&field, "Good");
    QTest::keyClick(&field, Qt::Key_Return);
    QTest::keyClicks(&field, "day");
    EXPECT_EQ(controller.getCurrentFilter()->valueForKey("inputText").toString(), "Good\nday");
    ui.listView->setFocus();
    EXPECT_EQ(steps(), before + 1);
    const CIRect first = frame();
    EXPECT_EQ(first.x, 0);
    EXPECT_GT(first.width, 10);

    drag({first.width / 2, first.height / 2}, {200, 150});
    drag({frame().right(), frame().top()}, {frame().right() + first.width, frame().top() + first.height});
    EXPECT_NEAR(frame().width, 2 * first.width, first.width / 4);
    EXPECT_EQ(steps(), before + 3);
    const CIRect placed = frame();
    bool isWritten = false, isElsewhere = false;
    for (int x = 0; x < 400; x += 2)
        for (int y = 0; y < 300; y += 4)
            if (resultAt(x, y).red() < 128)
                (placed.contains(CIPoint(x, y)) ? isWritten : isElsewhere) = true;
    EXPECT_TRUE(isWritten);
    EXPECT_FALSE(isElsewhere);

    controller.undo();
    controller.undo();
    EXPECT_EQ(frame(), first);
    controller.undo();
    EXPECT_EQ(control<TextField>("Text").toPlainText(), "");
    CITextRenderer::install(nullptr);
}

TEST_F(SecondPictureTest, CodesStayCrisp)
{
    controller.setBackgroundImage(plain(400, 300, {120, 120, 120}));
    pick("CIQRCodeGenerator");
    auto& message = control<TextField>("Message");
    message.setFocus();
    QTest::keyClicks(&message, "Lumivex");
    choose(control<PanelPopUp>("Correction"), 3);
    EXPECT_EQ(controller.getCurrentFilter()->valueForKey("inputCorrectionLevel").toString(), "H");
    const CIRect own = frame();
    perform(&Controller::fitInputs);
    const CIRect fitted = frame();
    const double scale = fitted.width / own.width;
    EXPECT_GT(scale, 2);
    EXPECT_EQ(scale, std::round(scale));
    for (int i = 0; i < int(fitted.width); ++i) {
        const QColor color = resultAt(int(std::round(fitted.x)) + i, 150);
        ASSERT_TRUE(color == QColor(Qt::black) || color == QColor(Qt::white))
            << i << qPrintable(color.name(QColor::HexArgb));
    }
}

} // namespace
