#include "effects2d/LeveledEffect.h"
#include "effects2d/linesEffect.h"
#include "effects2d/patMorphingEffect.h"
#include "effects2d/simpleEffects.h"
#include "platform/coreimage/CIContext.h"
#include "tests/effects2d/EffectFixture.h"

#include <cmath>
#include <set>

namespace {

QRgb pixelOf(const CIImage& image, int x, int y)
{
    const CIBitmap bitmap = CIContext().render(image, {double(x), double(y), 1, 1}, 1, CIFormat::BGRA8);
    return bitmap.isNull() ? 0 : bitmap.row<std::uint32_t>(0)[0];
}

int difference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b)),
        std::abs(qAlpha(a) - qAlpha(b))});
}

TEST(EffectsList, MakesEffectsFromWhatTheyStored)
{
    const auto list = customEffectPrototypes();
    const CIDictionary changes{{"useBackImage", false}, {"bgColor", CIColor(0.1, 0.2, 0.3, 0.4)}, {"opacity", 12.5f},
        {"drawObj", 5}, {"object_count", 77}, {"linesCount", 42}, {"lineWidth", 3.25}, {"level", 4}, {"count", 9},
        {"patColor", CIColor(1, 0, 0)}, {"proportion", 0.75}, {"startPT.x", 10}, {"startPT.y", 20}};
    const std::vector<std::set<std::string>> own{{"drawObj", "object_count"}, {"linesCount", "lineWidth"},
        {"level", "lineWidth"}, {"level", "lineWidth"}, {"linesCount", "lineWidth"}, {},
        {"count", "patColor", "lineWidth", "proportion"}};
    for (std::size_t i = 0; i < list.size(); ++i) {
        SCOPED_TRACE(list[i]->className());
        CIDictionary stored = changes;
        stored["class"] = list[i]->className();
        const auto effect = customEffectFromDictionary(list, stored);
        ASSERT_TRUE(effect);
        const CIDictionary saved = effect->save();
        std::set<std::string> keys{"Name", "Tips", "class", "startPT.x", "startPT.y"};
        if (i != kSketch) {
            keys.insert({"useBackImage", "bgColor", "opacity"});
            keys.insert(own[i].begin(), own[i].end());
        }
        std::set<std::string> savedKeys;
        for (const auto& [key, value] : saved) {
            savedKeys.insert(key);
            if (changes.contains(key)) {
                EXPECT_EQ(value, changes.at(key)) << key;
            }
        }
        EXPECT_EQ(savedKeys, keys);
        if (i == kLines || i == kFlare) { // these copy all that they store
            EXPECT_EQ(effect->mycopy()->save(), saved);
        }
    }
    EXPECT_FALSE(customEffectFromDictionary(list, {{"class", "EvalEffect"}}));
    EXPECT_FALSE(customEffectFromDictionary(list, {}));
}

TEST(EffectsList, SurvivesDamagedDictionaries)
{
    const auto list = customEffectPrototypes();
    for (const auto& prototype : list) {
        CIDictionary stored{{"class", prototype->className()}, {"opacity", "no"}, {"bgColor", 3}, {"level", 1e300},
            {"linesCount", -1e300}, {"count", std::nan("")}, {"object_count", -5}, {"lineWidth", "wide"},
            {"startPT.x", std::nan("")}, {"drawObj", 1e9}};
        const auto effect = customEffectFromDictionary(list, stored);
        effect->initEffect();
        EXPECT_EQ(effect->getDrawImage().isNull(), prototype->className() == "sketchEffect");
    }
}

template <class Effect>
void expectRestored(Row row, const char* key, const CIValue& value, const std::function<void(Effect&)>& restore)
{
    SCOPED_TRACE(std::to_string(row) + " " + key);
    FakeEffectMaster master;
    Working<Effect> effect(row);
    effect->initEffect(); // places the anchor
    const CIDictionary before = effect->save();
    restore(*effect);
    CIDictionary expected = before;
    expected[key] = value;
    EXPECT_NE(expected, before);
    EXPECT_EQ(effect->save(), expected);
    master.undo.undo();
    EXPECT_EQ(effect->save(), before);
    master.undo.redo();
    EXPECT_EQ(effect->save(), expected);
}

TEST(EffectParameters, AreRestoredByTheirOwnOperations)
{
    const CIColor red(1, 0, 0, 0.25);
    for (const Row row : {kLines, kPatchWork, kMorphing}) {
        using E = GeneratedEffect;
        expectRestored<E>(row, "bgColor", red, [&](E& e) { e.setchangeBgColorSender(red, nullptr); });
        expectRestored<E>(row, "useBackImage", false, [](E& e) { e.setuseBgImageSender(false, nullptr); });
        expectRestored<E>(row, "opacity", 12.5, [](E& e) { e.setchangeOpacitySender(12.5f, nullptr); });
    }
    for (const Row row : {kLines, kFlare}) {
        using E = BurstEffect;
        expectRestored<E>(row, "linesCount", 21, [](E& e) { e.setchangeLinesCountSender(21, nullptr); });
        expectRestored<E>(row, "lineWidth", 2.5, [](E& e) { e.setchangeLineWidthSender(2.5, nullptr); });
    }
    for (const Row row : {kHilbert, kPatchWork}) {
        using E = LeveledEffect;
        expectRestored<E>(row, "level", 4, [](E& e) { e.setchangeLinesLevelSender(4, nullptr); });
        expectRestored<E>(row, "lineWidth", 2.5, [](E& e) { e.setchangeLineWidthSender(2.5, nullptr); });
    }
    using M = patMorphingEffect;
    expectRestored<M>(kMorphing, "count", 5, [](M& e) { e.setchangePatCountSender(5, nullptr); });
    expectRestored<M>(kMorphing, "patColor", red, [&](M& e) { e.setchangePatColorSender(red, nullptr); });
    expectRestored<M>(kMorphing, "lineWidth", 2.5, [](M& e) { e.setchangeLineWidthSender(2.5, nullptr); });
    expectRestored<M>(kMorphing, "proportion", 0.75, [](M& e) { e.setchangeProportionSender(0.75, nullptr); });
    using S = simpleEffects;
    expectRestored<S>(kSimple, "drawObj", 3, [](S& e) { e.setObjectTypeSender(3, nullptr); });
    expectRestored<S>(kSimple, "bgColor", red, [&](S& e) { e.setBgColorSender(red, nullptr); });
    expectRestored<S>(kSimple, "useBackImage", false, [](S& e) { e.setUseBgImageSender(false, nullptr); });
    expectRestored<S>(kSimple, "opacity", 12.5, [](S& e) { e.setChangOpacitySender(12.5f, nullptr); });
    expectRestored<S>(kSimple, "object_count", 11, [](S& e) { e.setChangObjCountSender(11, nullptr); });
}

TEST(GeneratedEffect, LaysLayerOverTintOverPicture)
{
    FakeEffectMaster master;
    master.picture = plainPicture(80, 40, 0xff204060);
    Working<simpleEffects> effect(kSimple);
    effect->setObjectMode(7); // opaque everywhere
    const QRgb half = qRgb(0x90, 0xa0, 0xb0); // the picture under white at one half
    effect->seOpacity(0);
    EXPECT_LE(difference(pixelOf(effect->getDrawImage(), 5, 5), half), 1);
    EXPECT_EQ(effect->getDrawImage().extent(), (CIRect{0, 0, 80, 40}));
    effect->setUseBackImage(false);
    EXPECT_EQ(qAlpha(pixelOf(effect->getDrawImage(), 5, 5)), 128);
    effect->setUseBackImage(true);
    effect->seOpacity(100);
    const QRgb opaque = pixelOf(effect->getDrawImage(), 40, 20);
    EXPECT_LE(difference(opaque, QColor(effect.figures()[58].color).rgb()), 1);
    effect->seOpacity(50);
    const QRgb mixed = pixelOf(effect->getDrawImage(), 40, 20);
    EXPECT_LE(std::abs(2 * qRed(mixed) - qRed(opaque) - qRed(half)), 2);
}

TEST(GeneratedEffect, ShowsThePartsOfWhatItExports)
{
    FakeEffectMaster master;
    master.picture = plainPicture(600, 1500, 0xff204060); // more than one band
    Working<simpleEffects> effect(kSimple);
    const CIBitmap whole =
        CIContext().render(effect->getDrawImage(), {0, 0, 600, 1500}, 1, CIFormat::BGRA8, CIAlpha::Premultiplied);
    const quartz::Part part{1, 100, 900, {300, 800}};
    for (const float opacity : {50.0f, 20.0f}) { // the second time from what the first kept
        effect->seOpacity(opacity);
        const QImage shown = effect->drawPart(part);
        if (opacity != 50)
            continue;
        for (int y = 0; y < 800; y += 7)
            for (int x = 0; x < 300; x += 7)
                ASSERT_LE(difference(shown.pixel(x, y), whole.row<std::uint32_t>(600 + y)[std::size_t(100 + x)]), 2);
    }
    EXPECT_EQ(effect->drawPart({0.25, 0, 100, {20, 20}}).size(), QSize(20, 20));
}

TEST(GeneratedEffect, DrawsLaterWhatItWouldDrawNow)
{
    FakeEffectMaster master;
    master.picture = plainPicture(60, 1500, 0xff204060);
    Working<simpleEffects> effect(kSimple);
    effect->seOpacity(50);
    const auto pixels = [](const CIImage& image) {
        return CIContext().render(image, {0, 0, 60, 1500}, 1, CIFormat::BGRA8, CIAlpha::Premultiplied);
    };
    const CIBitmap now = pixels(effect->getDrawImage());
    const BaseEffect::LaterImage draw = effect->laterDrawImage();
    effect->seOpacity(100);
    effect->clearEffect();
    CIRenderControl control;
    const CIBitmap later = pixels(draw(&control));
    EXPECT_EQ(control.progress(), 1);
    for (int y = 0; y < 1500; ++y)
        ASSERT_TRUE(std::ranges::equal(now.row<std::uint32_t>(y), later.row<std::uint32_t>(y))) << y;
    control.cancel();
    EXPECT_TRUE(draw(&control).isNull());
}

TEST(GeneratedEffect, FetchesThePictureOnceAndDrawsOnItsOwnLayer)
{
    FakeEffectMaster master;
    Working<simpleEffects> effect(kSimple);
    EXPECT_EQ(effect->drawImageSize(), QSizeF(726, 544));
    master.picture = plainPicture(30, 20, 0xff204060);
    EXPECT_EQ(effect->getDrawImage().extent(), (CIRect{0, 0, 30, 20}));
    const quartz::Drawing* layer = effect->effectImage();
    master.picture = plainPicture(50, 20, 0xff204060);
    effect->getDrawImage();
    EXPECT_EQ(effect->effectImage(), layer);
    effect->reloadImage();
    EXPECT_EQ(effect->drawImageSize(), QSizeF(50, 20));
}

TEST(AnchoredEffect, FollowsTheMouseAndCanBeTakenBack)
{
    FakeEffectMaster master;
    Working<linesEffect> effect(kLines);
    effect->initEffect();
    const CIPoint first = effect->startPoint();
    int posted = 0;
    const auto connection = QObject::connect(
        &NotificationCenter::defaultCenter(), &NotificationCenter::UpdateCustomView, [&] { ++posted; });

    effect->mouseDragged({1, 1}); // without a press
    EXPECT_EQ(effect->startPoint(), first);
    effect->mouseDown({100, 100});
    effect->mouseUp({100, 100});
    EXPECT_EQ(effect->startPoint(), first);
    EXPECT_EQ(posted, 0);
    master.undo.undo(); // the one step of the click
    EXPECT_FALSE(master.undo.canUndo());

    posted = 0;
    effect->mouseDown({100, 100});
    effect->mouseDragged({110, 120});
    EXPECT_EQ(effect->startPoint(), (CIPoint{110, 120}));
    effect->mouseUp({115, 125});
    EXPECT_EQ(effect->startPoint(), (CIPoint{115, 125}));
    EXPECT_EQ(posted, 2);
    master.undo.undo();
    EXPECT_EQ(effect->startPoint(), (CIPoint{110, 120}));
    master.undo.undo();
    EXPECT_EQ(effect->startPoint(), first);
    EXPECT_FALSE(master.undo.canUndo());
    master.undo.redo();
    EXPECT_EQ(effect->startPoint(), (CIPoint{110, 120}));
    QObject::disconnect(connection);
}

TEST(AnchoredEffect, PlacesAnAnchorThatWasNeverPlaced)
{
    Working<patMorphingEffect> effect(kMorphing);
    effect->read({{"startPT.x", 5}, {"startPT.y", -10001}});
    effect->initEffect();
    EXPECT_EQ(effect->startPoint(), (CIPoint{363, 272}));
    effect->setStartPoint({5, -10000});
    effect->makeImageEffect();
    EXPECT_EQ(effect->startPoint(), (CIPoint{5, -10000}));
}

} // namespace
