#include "PanelFixture.h"

#include "controls/panel/CaptionLabel.h"
#include "controls/panel/DropImageView.h"
#include "controls/panel/TextDescription.h"
#include "controls/picture/PictureConversion.h"
#include "platform/coreimage/CIContext.h"
#include "widgets/ColorWell.h"
#include "widgets/PanelCheckBox.h"

#include <cmath>

#include <QColorDialog>
#include <QFileDialog>
#include <QTextCursor>
#include <QTextDocument>

namespace {

const std::vector<std::string> kSentRadius{"set inputRadius", "name inputRadius", "update"};

TEST_F(RowTest, SliderSendsWhatItIsMovedToAndNothingWhenItStays)
{
    const auto blur = filterNamed("CIGaussianBlur");
    row.addSliderForFilterKeyMaster(blur, "inputRadius", master);
    auto& slider = part<ValueSlider>("slider");
    auto& readout = part<ReadoutField>("readoutTextField");
    EXPECT_EQ(slider.geometry(), QRect(94, row.height() - 16, 288 - 145, 16));
    EXPECT_EQ(readout.geometry(), QRect(288 - 47, row.height() - 16, 43, 16));
    EXPECT_EQ(slider.value(), 10);
    EXPECT_EQ(readout.text().trimmed(), "10.00");

    slider.moveTo(25);
    EXPECT_EQ(blur->valueForKey("inputRadius").toDouble(), 25);
    EXPECT_EQ(readout.text(), "25.00");
    EXPECT_EQ(master.log, kSentRadius);
    slider.moveTo(25);
    QTest::mouseClick(&slider, Qt::LeftButton, {}, QPoint(6 + int(25.0 / slider.maximum() * (143 - 12)), 8));
    EXPECT_EQ(master.sent.size(), 1u) << "pressing the handle is no change";
}

TEST_F(RowTest, AnglesAreShownInDegrees)
{
    const auto filter = filterNamed("CIHueAdjust");
    filter->setValueForKey(std::acos(0.0), "inputAngle");
    row.addSliderForFilterKeyMaster(filter, "inputAngle", master);
    EXPECT_EQ(part<ReadoutField>("readoutTextField").text(), "90.0");
    type(part<ReadoutField>("readoutTextField"), "45");
    EXPECT_FLOAT_EQ(filter->valueForKey("inputAngle").toFloat(), 0.785398f);
    EXPECT_TRUE(part<ValueSlider>("slider").valueText().endsWith("°"));
}

TEST_F(RowTest, ActionsAreKnownByName)
{
    row.addOffsetForFilterKeyMaster(filterNamed("CIColorMatrix"), "inputGVector", master);
    part<ReadoutField>("readout1TextField").setText("3");
    for (const char* action : {"sliderChanged", "colorWellChanged", "skewSliderChanged", "readout4DidChange"})
        EXPECT_TRUE(QMetaObject::invokeMethod(&row, action)) << action;
    EXPECT_TRUE(master.log.empty()) << "there are no such controls";
    QMetaObject::invokeMethod(&row, "readout1DidChange");
    ASSERT_EQ(master.sent.size(), 1u);
    EXPECT_EQ(master.sent[0].toVector(), (CIVector{3, 1, 0, 0}));
}

TEST_F(RowTest, ImageWellTakesFilesAndKeepsItsPictureForBadOnes)
{
    master.picture = CIImage::fromColor(CIColor(1, 0, 0)).cropped({0, 0, 30, 20});
    const auto filter = filterNamed("CIGlassDistortion");
    row.addImageWellForFilterKeyMaster(filter, "inputTexture", master);
    auto& well = part<DropImageView>("imageView");
    EXPECT_TRUE(well.image().isNull());
    const auto drop = [&](const char* path) {
        well.setFilePath1(QLatin1String(path));
        emit well.imageDropped();
    };
    drop("/good.png");
    EXPECT_EQ(well.image().size(), QSize(64, 43));
    EXPECT_TRUE(filter->valueForKey("inputTexture").toImage().isSameAs(master.picture));
    drop("/stopped.png");
    EXPECT_TRUE(filter->valueForKey("inputTexture").toImage().isSameAs(master.picture));
    drop("/bad.png");
    EXPECT_EQ(well.image().size(), QSize(64, 43));
    EXPECT_EQ(std::count(master.log.begin(), master.log.end(), "failure /bad.png"), 1);
    EXPECT_TRUE(filter->valueForKey("inputTexture").isNothing()) << "the master is told";

    QTest::mouseClick(&part<QPushButton>("pushButton"), Qt::LeftButton);
    auto* panel = row.findChild<QFileDialog*>();
    ASSERT_TRUE(panel);
    EXPECT_EQ(panel->windowModality(), Qt::WindowModal);
    panel->reject();
    EXPECT_EQ(master.sent.size(), 2u);
}

TEST_F(RowTest, TextSliderEditsADictionary)
{
    const auto text = std::make_shared<CIDictionary>();
    (*text)["pointSize"] = 12;
    row.addSliderForTextKeyLoHiMaster(text, "pointSize", 4, 100, master);
    EXPECT_EQ(part<CaptionLabel>("labelTextField").fullText(), "point Size");
    part<ValueSlider>("slider").moveTo(24);
    EXPECT_EQ((*text)["pointSize"].toFloat(), 24);
    type(part<ReadoutField>("readoutTextField"), "30");
    EXPECT_EQ((*text)["pointSize"].toFloat(), 30);
    EXPECT_EQ(master.log, (std::vector<std::string>{"dict pointSize", "update", "dict pointSize", "update"}));
}

TEST(Captions, AreCutToFit)
{
    const QFont font;
    const QFontMetrics metrics(rowFont(font));
    EXPECT_EQ(ellipsizedText("Radius", font, 200), "Radius");
    EXPECT_EQ(ellipsizedText("Replacement Color 1", font, 400), "Replace With 1");
    for (int width = 30; width < 150; width += 7) {
        const QString cut = ellipsizedText("Gray Component Replacement", font, float(width));
        EXPECT_TRUE(cut.endsWith("..."));
        EXPECT_LE(metrics.horizontalAdvance(cut), width - 5);
    }
    EXPECT_EQ(ellipsizedText("Radius", font, 0), "...");
}

TEST(Pictures, GoBetweenTheEngineAndTheWindowUnchanged)
{
    QImage opaque(3, 2, QImage::Format_RGB888), clear(3, 2, QImage::Format_ARGB32);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x) {
            opaque.setPixelColor(x, y, QColor(x * 100, y * 200, 30));
            clear.setPixelColor(x, y, QColor(x * 100, y * 200, 30, x * 127));
        }
    for (const QImage& picture : {opaque, clear}) {
        const CIImage image = ParameterView::CIImageWithNSImage(picture);
        EXPECT_EQ(image.extent(), (CIRect{0, 0, 3, 2}));
        const QImage back = pictureOfImage(image, image.extent());
        ASSERT_EQ(back.size(), picture.size());
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < 3; ++x) {
                const QColor expected = picture.convertToFormat(back.format()).pixelColor(x, y);
                const QColor got = back.pixelColor(x, y);
                EXPECT_EQ(got.alpha(), expected.alpha());
                EXPECT_NEAR(got.red(), expected.red(), 2);
                EXPECT_NEAR(got.green(), expected.green(), 2);
            }
    }
    EXPECT_TRUE(imageOfPicture({}).isNull());
    EXPECT_TRUE(pictureOfImage(CIImage(), {}).isNull());
    EXPECT_EQ(thumbnailSize({0, 0, 4000, 3000}), QSize(64, 48));
    EXPECT_EQ(thumbnailSize({0, 0, 10000, 5}), QSize(64, 1));
    EXPECT_EQ(thumbnailSize({0, 0, 5, 10}), QSize(32, 64));
    EXPECT_TRUE(thumbnailOf(CIImage::fromColor({})).isNull());
}

TEST(Text, DiffersFromADescriptionByAnyEntry)
{
    QTextDocument text;
    QTextCursor cursor(&text);
    QTextCharFormat format;
    format.setFontFamilies({"Inter"});
    format.setFontPointSize(12);
    format.setForeground(QColor(255, 0, 0));
    format.setProperty(TextShadowOffset, QPointF(1, -2));
    format.setProperty(TextShadowColor, QColor(0, 0, 255));
    cursor.insertText("words", format);
    CIDictionary same{{"string", "words"}, {"font", "Inter"}, {"pointSize", 12}, {"colorRed", 1}, {"colorAlpha", 1},
        {"isShadow", 1}, {"shadowOffsetX", 1}, {"shadowOffsetY", -2}, {"shadowColorBlue", 1}, {"shadowColorAlpha", 1}};
    EXPECT_FALSE(textDiffers(text, same));
    for (const auto& [key, value] : same) {
        CIDictionary other = same;
        other.erase(key);
        EXPECT_TRUE(textDiffers(text, other)) << key;
    }
    same["underlineStyle"] = 1;
    EXPECT_TRUE(textDiffers(text, same));
}

} // namespace
