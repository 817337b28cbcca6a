// Lists of favourites that several windows have, and what is stored of them.
#include "app/catalogue/FavouritesStore.h"
#include "platform/foundation/KeyedArchive.h"
#include "platform/foundation/UserDefaults.h"
#include "widgets/DocPageControl.h"
#include "widgets/FavouritesMaster.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QTemporaryDir>

namespace {

const QString kList = QStringLiteral("EffectsFavorites");

struct FakeMaster : FavouritesMaster {
    QString told;

    void chooseFavourite(onlyTextClosedButton*) override { }
    void removeFavourite(onlyTextClosedButton*) override { }
    void showFavouriteMenu(onlyTextClosedButton*, const QPoint&) override { }
    void tell(const QString& message) override { told = message; }
};

/// What a window has of it.
struct Window {
    Window() { store.read(); }

    onlyTextClosedButton* add(const QString& name, CIDictionary values = {})
    {
        values["class"] = "CITorusLensDistortion";
        store.add({QImage(40, 25, QImage::Format_RGB32), name, std::move(values)});
        return button(int(strip.items().size()) - 1);
    }
    onlyTextClosedButton* button(int index) { return qobject_cast<onlyTextClosedButton*>(strip.items().value(index)); }
    QStringList names() const
    {
        QStringList names;
        for (const Favourite& favourite : store.favourites())
            names << QString::fromStdString(favourite.valueForKey("ToolTipName").toString());
        return names;
    }

    DocPageControl strip;
    FakeMaster master;
    FavouritesStore store{{kList, {}}, strip, master};
};

class FavouritesStoreTest : public testing::Test {
protected:
    FavouritesStoreTest() { UserDefaults::standardUserDefaults().setFile(folder.filePath("lumivex.ini")); }

    QStringList stored() { return Window().names(); }
    QFileInfoList largeFiles() { return QDir(folder.filePath("EffectsFavorites.data")).entryInfoList(QDir::Files); }

    QTemporaryDir folder;
};

TEST_F(FavouritesStoreTest, WindowsKeepWhatOthersHaveAddedChangedAndRemoved)
{
    Window first, second;
    first.add("Blur");
    second.add("Twirl");
    EXPECT_TRUE(first.store.save() && second.store.save());
    EXPECT_EQ(stored(), (QStringList{"Blur", "Twirl"}));
    EXPECT_TRUE(first.store.save());
    EXPECT_EQ(stored(), (QStringList{"Blur", "Twirl"})) << "it doesn't know the other one, but leaves it";

    Window third;
    first.store.remove(first.button(0));
    EXPECT_TRUE(first.store.save());
    EXPECT_EQ(stored(), QStringList("Twirl"));
    third.store.rename(third.button(1), "Spin");
    EXPECT_TRUE(third.store.save());
    EXPECT_EQ(stored(), QStringList("Spin")) << "what another has removed doesn't come back";
    EXPECT_TRUE(second.store.save());
    EXPECT_EQ(stored(), QStringList("Spin")) << "nor does the former name";
    EXPECT_TRUE(Window().store.save());
    EXPECT_EQ(stored(), QStringList("Spin"));
}

TEST_F(FavouritesStoreTest, EqualOnesOfFormerVersionsAndTheirOrderAreKept)
{
    Window().store.save();
    const StoredRecord record{
        {"class", KeyedArchive::archivedData("CIBoxBlur")}, {"ToolTipName", KeyedArchive::archivedData("Box")}};
    UserDefaults::standardUserDefaults().setRecordsForKey({record, record}, kList);
    Window first, second;
    first.add("Blur");
    EXPECT_TRUE(first.store.save());
    second.add("Twirl");
    second.add("Bump");
    second.strip.moveItem(second.button(1), 0); // those without a picture have no button
    EXPECT_TRUE(second.store.save());
    EXPECT_EQ(stored(), (QStringList{"Box", "Box", "Bump", "Twirl", "Blur"})) << "the others' come last then";
}

TEST_F(FavouritesStoreTest, AnImageOfTheUsersIsCompressedAndStaysWhileAWindowMayWantIt)
{
    const CIBitmap flat(400, 300);
    auto first = std::make_unique<Window>();
    first->add("Lens", {{"inputTexture", CIImage::fromBitmap(flat)}});
    CIBitmap noise(400, 300);
    std::uint32_t random = 1;
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 1600; ++x)
            noise.mutableRow(y)[x] = std::byte((random = random * 1664525 + 1013904223) >> 24);
    first->add("Noise", {{"inputTexture", CIImage::fromBitmap(noise)}});
    EXPECT_TRUE(first->store.save());
    ASSERT_EQ(largeFiles().size(), 1) << "the flat one takes next to nothing";

    Window second;
    ASSERT_EQ(second.names(), (QStringList{"Lens", "Noise"}));
    EXPECT_EQ(second.store.favourites()[0].valueForKey("inputTexture").toImage().extent(), CIRect(0, 0, 400, 300));
    first->store.remove(first->button(1));
    EXPECT_TRUE(first->store.save());
    EXPECT_EQ(second.store.favourites()[1].valueForKey("inputTexture").toImage().extent(), CIRect(0, 0, 400, 300));
    first.reset();
    EXPECT_TRUE(second.store.save());
    EXPECT_EQ(largeFiles().size(), 0) << "nobody can want it any more";
}

TEST_F(FavouritesStoreTest, ADamagedListIsSetAsideAndTold)
{
    QFile file(folder.filePath("EffectsFavorites.cbor"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("damaged") > 0);
    file.close();
    Window window;
    EXPECT_TRUE(window.master.told.contains("EffectsFavorites-damaged-")) << window.master.told.toStdString();
    EXPECT_EQ(QDir(folder.path()).entryList({"*-damaged-*.cbor"}).size(), 1);
    window.add("Blur");
    EXPECT_TRUE(window.store.save());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("damaged") > 0); // while the window is open
    file.close();
    EXPECT_TRUE(window.store.save());
    EXPECT_EQ(stored(), QStringList("Blur"));
    EXPECT_EQ(QDir(folder.path()).entryList({"*-damaged-*.cbor"}).size(), 2);
}

} // namespace
