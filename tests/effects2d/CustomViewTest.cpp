#include "effects2d/customEffImageView.h"
#include "effects2d/linesEffect.h"
#include "tests/effects2d/EffectFixture.h"
#include "tests/support/Input.h"

#include <QMenu>
#include <QTest>

namespace {

struct FakeViewMaster : FakeEffectMaster, CustomViewMaster {
    std::shared_ptr<BaseEffect> current;
    std::vector<float> zooms;
    QStringList log;
    QMenu menu;

    CIImage backImage() override { return picture; }
    BaseEffect* getCurrentCustomEffect() override { return current.get(); }
    QMenu* contextMenu() override { return &menu; }
    void updateZoommWithDelta(double delta) override { zooms.push_back(float(delta)); }
    void setZoom(float zoom) override { zooms.push_back(zoom); }
    void takeDroppedFile(const QString& path) override { log << "dropped " + path; }
};

/// A window with nothing but the view, 400 x 300 points of it visible.
struct CustomViewTest : testing::Test {
    FakeViewMaster master;
    CustomEffectsScrollView window;
    customEffImageView& view = *window.imageView();

    void SetUp() override
    {
        window.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        window.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        window.resize(400, 300);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        view.setController(&master);
    }
    void select(int row) { master.current = Working(row).effect; }
    QImage shown() { return view.grab().toImage(); }
    QRgb at(const QImage& image, CIPoint picture) const
    {
        const QPointF p = view.toWidget(picture) * view.devicePixelRatioF();
        return image.pixel(int(std::floor(p.x())), int(std::floor(p.y())));
    }
    QPoint place(double x, double y) const { return view.toWidget({x, y}).toPoint(); }
};

TEST_F(CustomViewTest, ShowsThePictureOrTheEffectCentered)
{
    master.picture = plainPicture(100, 60, 0xff204060);
    view.resizeViewBoundCenter(true, 3);
    EXPECT_EQ(at(shown(), {50, 30}), 0xff204060u);
    EXPECT_EQ(view.toWidget({50, 30}), QPointF(200, 150));
    const QRgb around = at(shown(), {-5, 30});
    EXPECT_NE(around, 0xff204060u);

    select(kPatchWork);
    std::static_pointer_cast<GeneratedEffect>(master.current)->seOpacity(0);
    const QImage tinted = shown(); // white at one half over the picture
    EXPECT_NEAR(qRed(at(tinted, {50, 30})), 0x90, 1);
    EXPECT_EQ(at(tinted, {-5, 30}), around);

    master.picture = {};
    master.current.reset();
    EXPECT_EQ(at(shown(), {50, 30}), around);
}

TEST_F(CustomViewTest, IsDrawnAnewWhenAnEffectSaysSo)
{
    master.picture = plainPicture(100, 60, 0xff204060);
    select(kPlasma);
    auto& effect = static_cast<GeneratedEffect&>(*master.current);
    effect.seOpacity(100);
    const QImage before = shown();
    effect.regenerate(nullptr);
    EXPECT_NE(shown(), before);
}

TEST_F(CustomViewTest, PlacesTheAnchorInPicturePixelsAtAnyZoom)
{
    master.picture = plainPicture(800, 600, 0xff204060);
    select(kLines);
    view.setZoom(0.5f);
    shown();
    QTest::mousePress(&view, Qt::LeftButton, {}, place(400, 300));
    input::moveMouse(view, place(500, 200));
    EXPECT_EQ(master.current->startPoint(), (CIPoint{500, 200}));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, place(520, 220));
    EXPECT_EQ(master.current->startPoint(), (CIPoint{520, 220}));
    master.undo.undo();
    EXPECT_EQ(master.current->startPoint(), (CIPoint{500, 200}));

    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Right);
    QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(master.current->startPoint(), (CIPoint{501, 190}));
    master.undo.undo();
    EXPECT_EQ(master.current->startPoint(), (CIPoint{501, 200}));
}

TEST_F(CustomViewTest, MarksTheAnchorWhileTheMouseIsThere)
{
    master.picture = plainPicture(300, 200, 0xff204060);
    select(kMorphing);
    auto& effect = static_cast<AnchoredEffect&>(*master.current);
    effect.seOpacity(0);
    effect.setStartPoint({50, 50});
    const QImage without = shown();
    input::enter(view);
    EXPECT_TRUE(view.drawsCursor());
    EXPECT_EQ(view.cursor().shape(), Qt::PointingHandCursor);
    QImage with = shown();
    const auto marked = [&](int distance) { // within the square of that size around the anchor
        int differing = 0;
        for (int y = -distance; y < distance; ++y)
            for (int x = -distance; x < distance; ++x) {
                const QPoint p = place(50, 50) + QPoint(x, y);
                differing += with.pixel(p * view.devicePixelRatio()) != without.pixel(p * view.devicePixelRatio());
            }
        return differing;
    };
    EXPECT_GT(marked(8), 20);
    EXPECT_EQ(marked(8), marked(20));

    input::leave(view);
    EXPECT_FALSE(view.drawsCursor());
    view.clearFocus();
    EXPECT_EQ(shown(), without);
    select(kPlasma);
    input::enter(view);
    EXPECT_FALSE(view.drawsCursor());
}

TEST_F(CustomViewTest, TakesDroppedPictures)
{
    const auto offer = [&](const QStringList& paths) { return input::drop(view, input::Files(paths)); };
    EXPECT_FALSE(offer({"/a/notes.txt"}));
    EXPECT_FALSE(offer({"/a/notes.txt", "/a/b.png"})); // the first counts
    EXPECT_TRUE(offer({"/a/b.PnG"}));
    EXPECT_TRUE(offer({"/a/b.Pdf", "/a/c.txt"}));
    EXPECT_EQ(master.log, (QStringList{"dropped /a/b.PnG", "dropped /a/b.Pdf"}));
}

} // namespace
