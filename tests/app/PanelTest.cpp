// The panel in the real window, for every filter of the catalogue.
#include "WindowFixture.h"

#include "controls/editors/CubeEditor.h"
#include "controls/editors/EditorFold.h"
#include "controls/panel/BezelStyle.h"
#include "controls/panel/CaptionLabel.h"
#include "controls/panel/FilterView.h"
#include "controls/panel/ParameterView.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "platform/chain/Layers.h"
#include "ui_MainWindow.h"
#include "widgets/ColorWell.h"
#include "widgets/PanelCheckBox.h"
#include "widgets/ReadoutField.h"
#include "widgets/ValueSlider.h"

#include <QLayout>
#include <QScrollBar>
#include <QTest>

#include <algorithm>
#include <cmath>

namespace {

class PanelTest : public WindowTest {
protected:
    PanelTest()
    {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    /// All filters, by the road of a chosen row but without a click each.
    template <class F>
    void forEachFilter(F check)
    {
        for (const std::string& name : CIFilter::filterNamesInCategory("")) {
            SCOPED_TRACE(name);
            controller.clearAll();
            controller.addFilterIndex(QString::fromStdString(name), 111);
            ASSERT_TRUE(controller.getCurrentFilter());
            settle();
            check(*controller.getCurrentFilter());
            undo.removeAllActions();
        }
    }
    static void settle()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    FilterView* panel() const { return ui.placeCntrlView->findChild<FilterView*>(); }
    std::vector<ParameterView*> rows() const
    {
        const auto found = ui.placeCntrlView->findChildren<ParameterView*>();
        return {found.begin(), found.end()};
    }
    template <class T>
    T& control(const char* name) const
    {
        T* found = ui.placeCntrlView->findChild<T*>(QLatin1String(name));
        if (!found)
            throw std::runtime_error(name);
        return *found;
    }
    QRect inPanel(const QWidget& widget) const
    {
        return QRect(widget.mapTo(ui.placeCntrlView, QPoint()), widget.size());
    }
};

TEST_F(PanelTest, RowsNeitherOverlapNorHideAnything)
{
    for (int width : {1280, 900}) {
        window.resize(width, 700);
        forEachFilter([&](const CIFilter&) {
            std::vector<QRect> taken;
            for (ParameterView* row : rows())
                for (QWidget* part : row->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
                    const QRect place = inPanel(*part);
                    EXPECT_TRUE(row->rect().contains(part->geometry())) << part->objectName().toStdString();
                    EXPECT_TRUE(ui.placeCntrlView->rect().contains(place)) << part->objectName().toStdString();
                    for (const QRect& other : taken)
                        EXPECT_FALSE(place.intersects(other)) << part->objectName().toStdString();
                    taken.push_back(place);
                    EXPECT_FALSE(part->toolTip().isEmpty()) << part->objectName().toStdString();
                    if (const auto* caption = qobject_cast<CaptionLabel*>(part)) {
                        EXPECT_LE(caption->fontMetrics().horizontalAdvance(caption->text()), caption->width());
                        EXPECT_TRUE(caption->toolTip().startsWith(caption->fullText())) << "all of a cut one";
                        continue;
                    }
                    EXPECT_FALSE(part->accessibleName().isEmpty()) << part->objectName().toStdString();
                    if (const auto* box = qobject_cast<PanelCheckBox*>(part)) {
                        EXPECT_LE(box->fontMetrics().horizontalAdvance(box->text()), box->width() - 20);
                    }
                }
        });
    }
}

TEST_F(PanelTest, EverySliderChangesItsValueAndUndoBringsBothBack)
{
    forEachFilter([&](CIFilter& filter) {
        const std::size_t count = ui.placeCntrlView->findChildren<ValueSlider*>().size();
        for (std::size_t i = 0; i < count; ++i) {
            ValueSlider* slider = ui.placeCntrlView->findChildren<ValueSlider*>()[qsizetype(i)];
            if (!slider->isEnabled())
                continue;
            SCOPED_TRACE(slider->accessibleName().toStdString());
            const double before = slider->value();
            const CIDictionary values = [&] {
                CIDictionary all{{kLayerAmountKey, filter.valueForKey(kLayerAmountKey)}};
                for (const std::string& key : filter.inputKeys())
                    if (key != "inputExtent") // every frame sets it
                        all[key] = filter.valueForKey(key);
                return all;
            }();
            const auto isAsBefore = [&] {
                return std::all_of(values.begin(), values.end(),
                    [&](const auto& entry) { return filter.valueForKey(entry.first) == entry.second; });
            };
            slider->moveTo(before == slider->maximum() ? slider->minimum() : slider->maximum());
            EXPECT_FALSE(isAsBefore());
            EXPECT_TRUE(undo.undoActionName().startsWith("Change to")) << undo.undoActionName().toStdString();
            controller.undo();
            settle();
            EXPECT_TRUE(isAsBefore());
            ValueSlider* again = ui.placeCntrlView->findChildren<ValueSlider*>()[qsizetype(i)];
            EXPECT_FLOAT_EQ(float(again->value()), float(before));
        }
    });
}

TEST_F(PanelTest, NoNonsenseReachesAFilter)
{
    forEachFilter([&](CIFilter& filter) {
        const std::shared_ptr<CIFilter> fresh = CIFilter::filterWithName(filter.name());
        fresh->setDefaults();
        for (ReadoutField* field : ui.placeCntrlView->findChildren<ReadoutField*>())
            for (const char* nonsense : {"nan", "inf", "1e30", "-1e39", "0/0"}) {
                field->setFocus();
                field->setText({});
                QTest::keyClicks(field, nonsense);
                QTest::keyClick(field, Qt::Key_Return);
            }
        for (const std::string& key : filter.inputKeys()) {
            const CIValue value = filter.valueForKey(key);
            if (value == fresh->valueForKey(key))
                continue; // some standard values are without an end
            std::vector<double> numbers{value.toDouble()};
            if (value.isVector())
                numbers = value.toVector().values();
            if (value.isTransform())
                numbers = {value.toTransform().a, value.toTransform().b, value.toTransform().c, value.toTransform().d};
            for (double number : numbers)
                EXPECT_LE(std::abs(number), 2e6) << key; // and false for what is no number
        }
    });
}

TEST_F(PanelTest, OtherControlsChangeTheirValueToo)
{
    forEachFilter([&](CIFilter& filter) {
        for (PanelCheckBox* box : ui.placeCntrlView->findChildren<PanelCheckBox*>()) {
            const bool before = box->isChecked();
            box->click();
            EXPECT_TRUE(undo.canUndo()) << box->accessibleName().toStdString();
            EXPECT_NE(box->isChecked(), before);
        }
        for (ColorWell* well : ui.placeCntrlView->findChildren<ColorWell*>()) {
            const QColor color(1, 2, 3, 4);
            well->pick(color);
            EXPECT_TRUE(undo.canUndo()) << well->accessibleName().toStdString();
        }
        bool found = filter.inputKeys().empty() || ui.placeCntrlView->findChildren<ColorWell*>().isEmpty();
        const auto isPicked = [](const CIValue& value) { return std::abs(value.toColor().blue() - 3 / 255.0) < 1e-3; };
        for (const std::string& key : filter.inputKeys()) {
            const CIDictionary parts = filter.valueForKey(key).toDictionary();
            found = found || isPicked(filter.valueForKey(key))
                || std::ranges::any_of(parts, [&](const auto& part) { return isPicked(part.second); });
        }
        found = found || isPicked(filter.valueForKey(kLayerColorKey));
        EXPECT_TRUE(found);
    });
}

TEST_F(PanelTest, WalksBackAndForthByName)
{
    pick("CIGaussianBlur");
    control<ValueSlider>("slider").moveTo(30);
    control<ValueSlider>("slider").moveTo(50);
    EXPECT_EQ(undo.undoMenuItemTitle(), "Undo Change to Gaussian Blur Radius");
    EXPECT_EQ(action("actionUndo")->text(), "Undo Change to Gaussian Blur Radius");
    ValueSlider& slider = control<ValueSlider>("slider");
    slider.setFocus();
    ui.controlScrollArea->verticalScrollBar()->setValue(0);
    action("actionUndo")->trigger();
    settle();
    EXPECT_EQ(control<ValueSlider>("slider").value(), 30);
    EXPECT_EQ(window.focusWidget(), &control<ValueSlider>("slider")) << "the new panel keeps the keyboard where it was";
    EXPECT_EQ(undo.redoMenuItemTitle(), "Redo Change to Gaussian Blur Radius");
    action("actionUndo")->trigger();
    settle();
    EXPECT_EQ(control<ReadoutField>("readoutTextField").text(), "10.00");
    action("actionRedo")->trigger();
    action("actionRedo")->trigger();
    settle();
    EXPECT_EQ(control<ValueSlider>("slider").value(), 50);
    EXPECT_EQ(controller.getCurrentFilter()->valueForKey("inputRadius").toDouble(), 50);

    QTest::mouseDClick(&control<CaptionLabel>("labelTextField"), Qt::LeftButton);
    EXPECT_EQ(control<ValueSlider>("slider").value(), 10);
    controller.undo();
    settle();
    EXPECT_EQ(control<ValueSlider>("slider").value(), 50) << "one step";
}

TEST_F(PanelTest, ScrollsWhenThereIsNoRoomAndTabGoesDown)
{
    window.resize(900, 520);
    std::string longest;
    int most = 0;
    forEachFilter([&](const CIFilter& filter) {
        const int height = ui.placeCntrlView->layout()->minimumSize().height();
        if (height > most) {
            most = height;
            longest = filter.name();
        }
        int last = -1;
        for (const QWidget* part : panel()->controls()) {
            const int top = inPanel(*part).top();
            EXPECT_GE(top, last - 8) << part->objectName().toStdString();
            last = std::max(last, top);
        }
    });
    controller.clearAll();
    controller.addFilterIndex(QString::fromStdString(longest), 111);
    settle();
    QScrollBar* bar = ui.controlScrollArea->verticalScrollBar();
    EXPECT_EQ(bar->maximum() > 0, most > ui.controlScrollArea->viewport()->height());
    const std::vector<QWidget*> controls = panel()->controls();
    controls.front()->setFocus();
    for (QWidget* control : controls) {
        EXPECT_TRUE(control->hasFocus()) << control->objectName().toStdString();
        QTest::keyClick(control, Qt::Key_Tab);
    }
}

TEST_F(PanelTest, AnEditorsGestureIsOneStepAndItsFoldOutlivesUndo)
{
    openPicture(pictureFile("brown.png", 60, 40));
    pick("CIColorCubeWithColorSpace");
    settle();
    const CIValue before = controller.getCurrentFilter()->valueForKey("inputCubeData");
    const auto former = undo.undoMenuItemTitle();
    QTest::mouseClick(&control<FoldButton>("editorFold"), Qt::LeftButton);
    settle();
    ASSERT_FALSE(ui.placeCntrlView->findChildren<LookButton*>().isEmpty());
    ui.placeCntrlView->findChildren<LookButton*>().last()->click();
    EXPECT_EQ(controller.getCurrentFilter()->valueForKey("inputCubeDimension").toDouble(), 17);
    controller.undo();
    settle();
    EXPECT_EQ(undo.undoMenuItemTitle(), former) << "data and dimension came in one step";
    EXPECT_TRUE(controller.getCurrentFilter()->valueForKey("inputCubeData") == before);
    EXPECT_EQ(controller.getCurrentFilter()->valueForKey("inputCubeDimension").toDouble(), 2);
    EXPECT_TRUE(ui.placeCntrlView->findChild<EditorFold*>()->isOpen());

    pick("CITemperatureAndTint");
    settle();
    QTest::mouseClick(&control<FoldButton>("editorFold"), Qt::LeftButton);
    ui.placeCntrlView->findChild<InputEditor*>()->findChild<QPushButton*>()->click();
    MyImageView& view = *ui.pictureScrollView->imageView();
    ASSERT_TRUE(view.isPickingPlace());
    QTest::mouseClick(&view, Qt::LeftButton, {}, view.toWidget({30, 20}).toPoint());
    EXPECT_FALSE(view.isPickingPlace());
    EXPECT_NE(controller.getCurrentFilter()->valueForKey("inputNeutral").toVector(), (CIVector{6500, 0}));
}

TEST_F(PanelTest, RestylingMakesRoundedPushButtonsSquare)
{
    pick("CIGlassDistortion");
    QPushButton& choose = control<QPushButton>("pushButton");
    EXPECT_EQ(bezelStyle(choose), BezelStyle::Rounded);
    controller.changeControlsStyle(ui.placeCntrlView);
    EXPECT_EQ(bezelStyle(choose), BezelStyle::TexturedSquare);
    EXPECT_EQ(bezelStyle(*ui.openBtn), BezelStyle::None);
}

} // namespace
