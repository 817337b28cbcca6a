// Editors under the rows of a panel, driven as a user does.
#include "PanelFixture.h"

#include "controls/editors/CubeEditor.h"
#include "controls/editors/CurveEditor.h"
#include "controls/editors/EditorFold.h"
#include "controls/editors/FloatData.h"
#include "controls/editors/KernelEditor.h"
#include "controls/picture/PictureConversion.h"
#include "widgets/PanelPopUp.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QToolButton>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

class EditorsTest : public testing::Test {
protected:
    void show(const char* filterName, int width = 240)
    {
        filter = filterNamed(filterName);
        for (const std::string& key : filter->inputKeys())
            master.standard[key] = filter->valueForKey(key);
        window.resize(width, 600);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        build();
    }
    void build()
    {
        delete panel;
        panel = new FilterView(&window, openFolds);
        panel->setFilter(filter);
        panel->setMaster(master);
        panel->tryRows();
        panel->trimBox();
        panel->addFilterHeaderTagEnabled(filter, 0, true);
        panel->addRows();
        panel->show();
        QCoreApplication::sendPostedEvents();
    }
    template <class T>
    T& part(const char* name = "")
    {
        T* found = *name ? panel->findChild<T*>(QLatin1String(name)) : panel->findChild<T*>();
        if (!found)
            throw std::runtime_error(name);
        return *found;
    }
    void openFold()
    {
        part<FoldButton>().setFocus();
        QTest::keyClick(&part<FoldButton>(), Qt::Key_Space);
        QTest::qWait(0);
    }
    std::ptrdiff_t steps() const { return std::count(master.log.begin(), master.log.end(), "begin"); }
    std::vector<double> weights() const { return filter->valueForKey("inputWeights").toVector().values(); }

    FakeParameterMaster master;
    QWidget window;
    OpenFolds openFolds = std::make_shared<std::set<std::string>>();
    FilterView* panel = nullptr;
    std::shared_ptr<CIFilter> filter;
};

TEST_F(EditorsTest, AFoldOpensUnderItsRowAndStaysOpenWhenThePanelIsBuiltAnew)
{
    show("CIConvolution3X3");
    const auto rows = panel->findChildren<ParameterView*>();
    ASSERT_EQ(rows.size(), 2);
    const int closed = panel->contentHeight();
    EXPECT_FALSE(panel->findChild<InputEditor*>()) << "made when it is needed";
    const QRect bias = rows[1]->geometry();

    openFold();
    EXPECT_GT(panel->contentHeight(), closed + 60);
    EXPECT_GT(rows[1]->y(), bias.y() + 60) << "the next row makes room";
    EXPECT_GE(panel->minimumHeight(), panel->contentHeight()) << "the panel is scrolled if need be";
    const EditorFold& fold = part<EditorFold>();
    EXPECT_GE(fold.y(), rows[0]->geometry().bottom());
    EXPECT_LE(fold.geometry().right(), panel->width());

    build();
    EXPECT_TRUE(part<EditorFold>().isOpen());
    QTest::mouseClick(&part<FoldButton>(), Qt::LeftButton);
    EXPECT_EQ(panel->contentHeight(), closed);
    build();
    EXPECT_FALSE(part<EditorFold>().isOpen());
}

TEST_F(EditorsTest, WeightsAreTypedChosenAndNormalized)
{
    show("CIConvolution3X3");
    openFold();
    auto& middle = part<ReadoutField>("weight4");
    EXPECT_EQ(middle.text(), "1");
    middle.setFocus();
    middle.selectAll();
    QTest::keyClicks(&middle, "2.5");
    EXPECT_EQ(weights()[4], 2.5) << "while it is typed";
    QTest::keyClick(&middle, Qt::Key_Down);
    EXPECT_TRUE(part<ReadoutField>("weight7").hasFocus());
    EXPECT_EQ(steps(), 1) << "all keys are one step";
    EXPECT_EQ(master.openChanges, 0);
    EXPECT_EQ(weights().size(), 9u);

    auto& first = part<ReadoutField>("weight0");
    first.setFocus();
    first.selectAll();
    QTest::keyClicks(&first, "-7");
    EXPECT_EQ(part<ReadoutField>("readout1TextField").text(), "-7.000") << "the row shows it";
    QTest::keyClick(&first, Qt::Key_Escape);
    EXPECT_EQ(weights()[0], 0);

    auto& normalize = part<QPushButton>();
    ASSERT_TRUE(normalize.isEnabled());
    QTest::mouseClick(&normalize, Qt::LeftButton);
    EXPECT_EQ(weights()[4], 1);
    EXPECT_FALSE(normalize.isEnabled());

    auto& presets = part<PanelPopUp>();
    presets.setFocus();
    EXPECT_EQ(presets.currentIndex(), 1) << "the identity is known";
    QTest::keyClick(&presets, Qt::Key_Down);
    EXPECT_EQ(weights(), std::vector<double>(9, 1 / 9.0)) << "a box";
    EXPECT_EQ(middle.text(), ".111");

    auto& row = part<ReadoutField>("readout2TextField");
    row.setFocus();
    row.selectAll();
    QTest::keyClicks(&row, "4");
    QTest::keyClick(&row, Qt::Key_Return);
    EXPECT_EQ(part<ReadoutField>("weight1").text(), "4") << "the grid shows what the row sets";
    EXPECT_EQ(presets.currentIndex(), 0);
    EXPECT_EQ(presets.findText("Edges"), -1) << "they would make the picture transparent";

    show("CIConvolutionRGB3X3");
    openFold();
    EXPECT_NE(part<PanelPopUp>().findText("Edges"), -1);
}

TEST_F(EditorsTest, ACurveIsDraggedMovedByKeysAndBroughtBack)
{
    show("CIToneCurve");
    openFold();
    auto& curve = part<CurveCanvas>();
    const auto point = [&](int i) {
        const CIPoint p = filter->valueForKey("inputPoint" + std::to_string(i)).toVector().point();
        return QPointF(p.x, p.y);
    };
    const QPoint from = curve.toWidget({0.25, 0.25}).toPoint(), to = curve.toWidget({0.3, 0.1}).toPoint();
    QTest::mousePress(&curve, Qt::LeftButton, {}, from);
    QTest::mouseMove(&curve, (from + to) / 2);
    QTest::mouseMove(&curve, to);
    EXPECT_EQ(master.openChanges, 1);
    QTest::mouseRelease(&curve, Qt::LeftButton, {}, to);
    EXPECT_NEAR(point(1).x(), 0.3, 0.02);
    EXPECT_NEAR(point(1).y(), 0.1, 0.02);
    EXPECT_EQ(steps(), 1) << "a drag is one step";
    EXPECT_EQ(master.openChanges, 0);
    EXPECT_EQ(point(0), QPointF(0, 0));

    QTest::mousePress(&curve, Qt::LeftButton, {}, to);
    QTest::mouseMove(&curve, curve.toWidget({0.9, 0.1}).toPoint());
    QTest::mouseRelease(&curve, Qt::LeftButton, {}, to);
    EXPECT_LT(point(1).x(), point(2).x()) << "points stay in order";

    curve.setFocus();
    QTest::keyClick(&curve, Qt::Key_Tab);
    EXPECT_EQ(curve.selected(), 2u);
    master.log.clear();
    QTest::keyPress(&curve, Qt::Key_Up);
    QTest::keyPress(&curve, Qt::Key_Up, Qt::ShiftModifier);
    QTest::keyRelease(&curve, Qt::Key_Up);
    EXPECT_NEAR(point(2).y(), 0.61, 1e-9);
    EXPECT_EQ(steps(), 1) << "as long as the key is held";
    EXPECT_EQ(curve.canvasPoints()[2].position, "50 %, becomes 61 %");
    QTest::keyClick(&curve, Qt::Key_Delete);
    EXPECT_EQ(point(2), QPointF(0.5, 0.5));
    QTest::mouseDClick(&curve, Qt::LeftButton, {}, curve.toWidget(point(1)).toPoint());
    EXPECT_EQ(point(1), QPointF(0.25, 0.25));
    QTest::keyClick(&curve, Qt::Key_Tab);
    QTest::keyClick(&curve, Qt::Key_Tab);
    QTest::keyClick(&curve, Qt::Key_Tab);
    QTest::keyClick(&curve, Qt::Key_Tab);
    EXPECT_FALSE(curve.hasFocus()) << "Tab leaves behind the last point";
}

TEST_F(EditorsTest, CurvesOfColorsMoveTogetherOrAlone)
{
    for (const char* name : {"CIColorCurves", "CIColorPolynomial"}) {
        SCOPED_TRACE(name);
        show(name);
        openFold();
        auto& curve = part<CurveCanvas>();
        // What the filter makes of white.
        const auto made = [&] {
            CIBitmap white(1, 1, CIFormat::RGBA8, CIAlpha::Opaque);
            std::ranges::fill(white.mutableRow<std::uint8_t>(0), std::uint8_t(255));
            filter->setValueForKey(CIImage::fromBitmap(white), "inputImage");
            const QColor color = pictureOfImage(filter->outputImage(), {0, 0, 1, 1}).pixelColor(0, 0);
            return std::array{color.red(), color.green(), color.blue()};
        };
        const auto near = [](int a, double b) { return std::abs(a - b) <= 4; };
        ASSERT_TRUE(near(made()[0], 255));
        const auto drag = [&](std::size_t index, double y) {
            const QPointF from = curve.points()[index], to(from.x(), y);
            QTest::mousePress(&curve, Qt::LeftButton, {}, curve.toWidget(from).toPoint());
            QTest::mouseMove(&curve, curve.toWidget(to).toPoint());
            QTest::mouseRelease(&curve, Qt::LeftButton, {}, curve.toWidget(to).toPoint());
        };
        const std::size_t last = curve.points().size() - 1;
        drag(last, 0.6);
        const std::array all = made();
        EXPECT_TRUE(near(all[0], 153) && near(all[1], 153) && near(all[2], 153));

        const auto buttons = panel->findChildren<QToolButton*>();
        QTest::mouseClick(buttons[1], Qt::LeftButton); // red
        drag(last, 1);
        EXPECT_TRUE(near(made()[0], 255));
        EXPECT_TRUE(near(made()[1], all[1]) && near(made()[2], all[2]));

        QTest::mouseClick(panel->findChild<QPushButton*>(), Qt::LeftButton);
        EXPECT_TRUE(near(made()[0], 255) && near(made()[2], 255));
        EXPECT_EQ(master.openChanges, 0);
    }
}

TEST_F(EditorsTest, CubesComeFromLooksAndFilesAndDamagedOnesChangeNothing)
{
    QTemporaryDir folder;
    const auto write = [&](const char* name, const QByteArray& text) {
        QFile file(folder.filePath(QLatin1String(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName();
    };
    QByteArray swapped = "TITLE \"Swap\"\nLUT_3D_SIZE 3\n";
    for (int i = 0; i < 27; ++i) // red and blue change places
        swapped += QByteArray::number(i / 9 / 2.0) + ' ' + QByteArray::number(i / 3 % 3 / 2.0) + ' '
            + QByteArray::number(i % 3 / 2.0) + '\n';

    show("CIColorCubeWithColorSpace");
    openFold();
    auto& editor = part<CubeEditor>();
    const auto looks = panel->findChildren<LookButton*>();
    EXPECT_TRUE(looks[0]->isChecked());
    QTest::mouseClick(looks[5], Qt::LeftButton);
    EXPECT_TRUE(looks[5]->isChecked());
    EXPECT_FALSE(looks[0]->isChecked());
    EXPECT_EQ(steps(), 1) << "data and dimension are one step";
    const CIValue noir = filter->valueForKey("inputCubeData");
    EXPECT_EQ(filter->valueForKey("inputCubeDimension").toDouble(), 17);

    editor.loadFile(write("bad.cube", swapped.left(swapped.size() - 10)));
    EXPECT_TRUE(part<QLabel>("state").text().contains("bad.cube"));
    editor.loadFile(folder.filePath("missing.cube"));
    EXPECT_TRUE(filter->valueForKey("inputCubeData") == noir);

    editor.loadFile(write("good.cube", swapped));
    EXPECT_TRUE(part<QLabel>("state").text().startsWith("Swap"));
    EXPECT_FALSE(looks[5]->isChecked());
    EXPECT_EQ(filter->valueForKey("inputCubeDimension").toDouble(), 3);
    const std::vector<float> pixels = floatsOf(filter->valueForKey("inputCubeData").toData());
    EXPECT_EQ((std::vector(pixels.begin() + 8, pixels.begin() + 12)), (std::vector<float>{0, 0, 1, 1}))
        << "red is blue";

    show("CIColorCubesMixedWithMask");
    openFold();
    QTest::mouseClick(panel->findChildren<LookButton*>()[1], Qt::LeftButton);
    EXPECT_EQ(filter->valueForKey("inputCubeDimension").toDouble(), 17);
    EXPECT_EQ(floatsOf(filter->valueForKey("inputCube1Data").toData()).size(), 4u * 17 * 17 * 17) << "it comes along";
}

TEST_F(EditorsTest, WhiteIsSetBySlidersAndByAGreyOfThePicture)
{
    show("CITemperatureAndTint");
    openFold();
    auto& kelvin = *panel->findChild<InputEditor*>()->findChild<ReadoutField*>();
    EXPECT_EQ(kelvin.text(), "6500");
    kelvin.setFocus();
    kelvin.selectAll();
    QTest::keyClicks(&kelvin, "9000");
    QTest::keyClick(&kelvin, Qt::Key_Return);
    EXPECT_EQ(filter->valueForKey("inputNeutral").toVector(), (CIVector{9000, 0}));
    EXPECT_EQ(part<ReadoutField>("readout1TextField").text(), "9000.000");

    CIBitmap warm(8, 8, CIFormat::RGBA8, CIAlpha::Opaque);
    for (int y = 0; y < 8; ++y)
        for (std::size_t i = 0; i < 32; ++i)
            warm.mutableRow<std::uint8_t>(y)[i] = std::uint8_t(i % 4 == 3 ? 255 : 220 - 40 * (i % 4));
    master.picture = CIImage::fromBitmap(warm);
    auto& eyedropper = part<QPushButton>();
    QTest::mouseClick(&eyedropper, Qt::LeftButton);
    ASSERT_TRUE(master.pick);
    EXPECT_TRUE(eyedropper.isChecked());
    master.pick({});
    EXPECT_FALSE(eyedropper.isChecked());
    EXPECT_EQ(filter->valueForKey("inputNeutral").toVector().X(), 9000) << "given up";
    QTest::mouseClick(&eyedropper, Qt::LeftButton);
    master.pick(CIPoint{4, 4});
    EXPECT_LT(filter->valueForKey("inputNeutral").toVector().X(), 5000) << "the light was warm";
    filter->setValueForKey(master.picture, "inputImage");
    const QColor grey = pictureOfImage(filter->outputImage(), {4, 4, 1, 1}).pixelColor(0, 0);
    EXPECT_NEAR(grey.red(), grey.green(), 3);
    EXPECT_NEAR(grey.blue(), grey.green(), 3);
}

TEST(KernelPresetTest, AllShapesHaveWeightsThatDoWhatTheirNameSays)
{
    for (const auto& [columns, rows] : {std::pair(3, 3), {5, 5}, {7, 7}, {9, 1}, {1, 9}})
        for (const KernelPreset& preset : kernelPresets()) {
            if (!preset.isFor(columns, rows))
                continue;
            SCOPED_TRACE(std::string(preset.name) + " " + std::to_string(columns));
            const KernelWeights weights = preset.weights(columns, rows);
            ASSERT_EQ(weights.size(), std::size_t(columns * rows));
            const double sum = std::accumulate(weights.begin(), weights.end(), 0.0);
            EXPECT_NEAR(sum, preset.hasNoSum ? 0 : 1, 1e-9) << "keeps even areas, or blackens them";
        }
    EXPECT_FALSE(normalized({1, -1}));
    EXPECT_EQ(normalized({1, 3}), (KernelWeights{0.25, 0.75}));
}

} // namespace
