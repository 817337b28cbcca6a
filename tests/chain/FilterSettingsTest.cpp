#include "platform/chain/FilterSettings.h"

#include "platform/foundation/KeyedArchive.h"

#include <gmock/gmock.h>
#include <QTemporaryDir>

#include <random>

namespace {

using testing::ElementsAre;

StoredRecord record(const CIDictionary& values)
{
    StoredRecord record;
    for (const auto& [key, value] : values)
        record[QString::fromStdString(key)] = KeyedArchive::archivedData(value);
    return record;
}

/// Of pixels that can't be packed.
CIImage largePicture()
{
    CIBitmap bitmap(200, 200);
    std::mt19937 random(1);
    for (int y = 0; y < bitmap.height(); ++y)
        for (std::uint8_t& byte : bitmap.mutableRow<std::uint8_t>(y))
            byte = std::uint8_t(random());
    return CIImage::fromBitmap(bitmap);
}

TEST(FilterSettings, ComeBackFromARecordWithoutWhatIsDamaged)
{
    const QTemporaryDir folder;
    const QString list = folder.filePath("list.cbor");
    StoredRecord stored = record(
        {{"class", "CIGaussianBlur"}, {"inputRadius", 3.5}, {"ButtonImage", "large"}, {"inputImage", largePicture()}});
    stored["inputOther"] = QByteArray("no archive");
    ASSERT_TRUE(writeStoredRecords({stored}, list));
    const FilterSettings settings = settingsFrom(readStoredRecords(list)->front(), "ButtonImage");
    EXPECT_TRUE(settings.hasClass());
    EXPECT_TRUE(settings.unread.contains("inputImage")) << "a picture stays on the disk";
    EXPECT_EQ(settings.valueForKey("inputImage").toImage().extent().width, 200);
    EXPECT_TRUE(settings.valueForKey("inputOther").isNothing());
    EXPECT_TRUE(settings.valueForKey("ButtonImage").isNothing());

    const auto blur = CIFilter::filterWithName("CIGaussianBlur");
    blur->setDefaults();
    applySettings(settings, *blur);
    EXPECT_EQ(blur->valueForKey("inputRadius").toDouble(), 3.5);
}

TEST(FilterSettings, HaveNamesOfTheirOwn)
{
    const auto named = [](const char* filter, const char* name) {
        FilterSettings settings;
        settings.values = {{"class", filter}, {"ToolTipName", name}};
        return settings;
    };
    FilterSettings untitled, empty;
    untitled.values = {{"class", "CIBloom"}};
    EXPECT_THAT(namesOf({named("CIBoxBlur", "Blur"), named("CIDiscBlur", "Blur"), empty, untitled,
                    named("CIColorInvert", "Blur (2)"), named("CIBoxBlur", "Blur")}),
        ElementsAre("Blur", "Blur (2)", "", "CIBloom", "Blur (2) (2)", "Blur (3)"));
}

} // namespace
