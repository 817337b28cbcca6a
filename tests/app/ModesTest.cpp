#include "app/catalogue/OutlineView.h"
#include "app/document/Document.h"
#include "app/document/SessionFolder.h"
#include "app/modes/ModeSwitch.h"
#include "platform/foundation/UserDefaults.h"
#include "widgets/DocPageControl.h"
#include "widgets/GradientButton.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QSignalSpy>
#include <QStackedWidget>

namespace {

/// What a window has of a mode.
struct Widgets {
    GradientButton button;
    OutlineView list;
    DocPageControl strip;
    QWidget controls;
};

struct Labels {
    QLabel name, hint;
    QWidget line;
};

/// Its item is a word; a favourite brings its class back.
class FakeMode : public Mode {
public:
    FakeMode(Widgets& widgets, Labels& labels, Document& document)
        : Mode({widgets.button, widgets.list, widgets.strip, widgets.controls, labels.name, labels.line, labels.hint},
            {"FakeFavourites", {}}, document)
    {
        widgets.button.setCheckable(true);
    }
    QString item;
    CIImage shown;

    bool hasItem() const override { return !item.isEmpty(); }
    void choose(const OutlineItem*) override { }
    void save(SessionState&, const CIImage&) const override { }
    void restore(const SessionState&) override { }
    void updateView() override { }
    void pictureChanged() override { }
    void apply(const std::function<void()>& done) override { done(); }
    void deselectRows() override { }

protected:
    void makeFavourite(const TakeFavourite& take) override
    {
        take({QImage(40, 25, QImage::Format_RGB32), item, {{"class", item.toStdString()}}});
    }
    Title title() const override { return {item, hasItem() ? QString() : QStringLiteral("Choose one.")}; }
    void dropItem() override
    {
        item.clear();
        showTitle();
    }
    CIImage shownImage() override { return shown; }
    bool bringBack(const Favourite* favourite) override
    {
        if (favourite)
            item = QString::fromStdString(favourite->valueForKey("class").toString());
        return favourite;
    }
};

class ModesTest : public testing::Test {
protected:
    onlyTextClosedButton* favourite(int index)
    {
        return qobject_cast<onlyTextClosedButton*>(widgets[0].strip.items().value(index));
    }

    Document document{nullptr};
    Labels labels;
    std::array<Widgets, 3> widgets;
    FakeMode first{widgets[0], labels, document}, second{widgets[1], labels, document},
        third{widgets[2], labels, document};
    QStackedWidget pages;
    ModeSwitch modes{{&first, &second, &third}, {&pages}, document.undoManager()};
};

TEST_F(ModesTest, OneIsOnAndTheWayBackIsTheOnlyStep)
{
    for (int page = 0; page < 3; ++page)
        pages.addWidget(new QWidget(&pages));
    UndoManager& undo = document.undoManager();
    int other = 0;
    undo.registerUndoWithTarget(&other, [] {});
    widgets[1].button.click();
    EXPECT_EQ(modes.filerMode(), 1u);
    EXPECT_EQ(pages.currentIndex(), 1);
    EXPECT_FALSE(first.isOn());
    EXPECT_TRUE(widgets[0].controls.isHidden());
    EXPECT_EQ(undo.undoActionNames(), QStringList{"Change Mode"});
    widgets[2].button.click();
    undo.undo();
    EXPECT_EQ(modes.filerMode(), 1u);
    undo.redo();
    EXPECT_EQ(&modes.current(), &third);
    third.button().click();
    EXPECT_TRUE(third.isOn()) << "it was on already";
}

TEST_F(ModesTest, OnlyTheOneThatIsOnWritesTheTitle)
{
    first.item = "Blur";
    modes.showCurrent();
    EXPECT_EQ(labels.name.text(), "Blur");
    EXPECT_TRUE(labels.hint.isHidden());
    second.item = "Plasma";
    second.showTitle();
    EXPECT_EQ(labels.name.text(), "Blur");
    modes.clearAllAndUpdate();
    EXPECT_TRUE(labels.name.isHidden());
    first.showTitle();
    EXPECT_EQ(labels.hint.text(), "Choose one.");
    EXPECT_TRUE(second.hasItem());
}

TEST_F(ModesTest, AFavouriteIsSwitchedOffByTheSecondPressAnotherOneOrItsEnd)
{
    QSignalSpy changes(&modes, &ModeSwitch::itemChanged);
    for (const char* item : {"Blur", "Twirl"}) {
        first.item = item;
        first.addFavourite();
    }
    favourite(0)->click();
    EXPECT_EQ(first.item, "Blur");
    EXPECT_EQ(first.selectedFavourite(), favourite(0));
    EXPECT_TRUE(document.wasChanged());
    favourite(1)->click();
    EXPECT_EQ(first.item, "Twirl");
    EXPECT_FALSE(favourite(0)->isChecked());
    favourite(1)->click();
    EXPECT_FALSE(first.hasItem());
    EXPECT_FALSE(first.selectedFavourite());
    EXPECT_EQ(changes.count(), 3);

    favourite(1)->click();
    favourite(0)->removeMySelf();
    EXPECT_EQ(first.item, "Twirl");
    favourite(0)->removeMySelf();
    EXPECT_FALSE(first.hasItem());
    EXPECT_TRUE(first.favourites().isEmpty());
}

TEST_F(ModesTest, PressingTheButtonOfTheModeThatIsOnIsNoSwitch)
{
    document.undoManager().registerUndoWithTarget(&document, [] {});
    widgets[0].button.click();
    EXPECT_TRUE(widgets[0].button.isChecked());
    modes.selectMenuMode(1);
    EXPECT_TRUE(document.undoManager().canUndo());
    EXPECT_NE(document.undoManager().undoActionName(), "Change Mode") << "the history is as it was";
}

TEST_F(ModesTest, AskedFromAnotherModeAFavouriteClearsThatOne)
{
    first.item = "Blur";
    first.addFavourite();
    favourite(0)->click();
    widgets[1].button.click();
    second.item = "Plasma";
    first.chooseFavourite(nullptr);
    EXPECT_FALSE(second.hasItem());
    EXPECT_EQ(first.item, "Blur");
    EXPECT_EQ(first.selectedFavourite(), favourite(0)) << "nothing of its own is touched";
}

TEST_F(ModesTest, TheFinishedImageHasAnEndAndIsThePictureWhereNothingIsMade)
{
    EXPECT_FALSE(first.laterFinishedImage());
    document.setPicture(CIImage::fromBitmap(CIBitmap(20, 10)));
    EXPECT_TRUE(first.finishedImage().isSameAs(document.picture()));
    first.shown = CIImage::fromColor(CIColor(1, 0, 0));
    EXPECT_EQ(first.finishedImage().extent(), (CIRect{0, 0, 20, 10}));
    first.shown = CIImage::fromBitmap(CIBitmap(7, 5));
    EXPECT_EQ(first.laterFinishedImage()(nullptr).extent(), (CIRect{0, 0, 7, 5}));
}

} // namespace
