#include "app/catalogue/FavouritesStore.h"

#include "app/catalogue/Thumbnail.h"
#include "controls/panel/FilterNames.h"
#include "platform/foundation/KeyedArchive.h"
#include "platform/foundation/Log.h"
#include "platform/foundation/UserDefaults.h"
#include "widgets/DocPageControl.h"
#include "widgets/FavouritesMaster.h"

#include <algorithm>

namespace {

const QString kThumbnailKey = QStringLiteral("ButtonImage");
const QString kEffectKey = QStringLiteral("classObj");
const QString kToolTipKey = QStringLiteral("ToolTipName");

void log(const std::exception& error) { qCWarning(lumivexLog, "%s", error.what()); }

/// Archives values into records. One picture is often part of several favourites; it is archived once.
class Archiver {
public:
    explicit Archiver(const QString& defaultsKey)
        : m_key(defaultsKey)
    {
    }

    void add(StoredRecord& record, const QString& key, const CIValue& value)
    {
        const CIImage image = value.toImage();
        if (const auto known = m_images.find(image.node()); image && known != m_images.end()) {
            record[key] = known->second;
            return;
        }
        try {
            const std::optional<StoredData> data =
                UserDefaults::standardUserDefaults().storedDataForKey(KeyedArchive::archivedData(value), m_key);
            if (!data) {
                m_failed = true;
                return;
            }
            record[key] = *data;
            if (image)
                m_images[image.node()] = *data;
        } catch (const std::exception& error) {
            log(error);
        }
    }
    bool hasFailed() const { return m_failed; }

private:
    QString m_key;
    std::map<std::shared_ptr<const ci::Node>, StoredData> m_images;
    bool m_failed = false;
};

CIData dataOf(const QByteArray& bytes)
{
    const auto* first = reinterpret_cast<const std::byte*>(bytes.constData());
    return CIData(first, first + bytes.size());
}

QByteArray bytesOf(const CIData& data)
{
    return QByteArray(reinterpret_cast<const char*>(data.data()), qsizetype(data.size()));
}

} // namespace

FavouritesStore::FavouritesStore(FavouritesFamily family, DocPageControl& strip, FavouritesMaster& master)
    : m_family(std::move(family))
    , m_strip(strip)
    , m_master(master)
{
}

// --- adding, finding, removing ---

onlyTextClosedButton* FavouritesStore::addButton(const QImage& thumbnail, const QString& toolTip)
{
    auto* button = new onlyTextClosedButton;
    button->setImages(QStringLiteral("off_button_50"), QStringLiteral("on_button_50"));
    const std::string text = toolTip.toStdString(); // stored in English
    button->setName(
        m_family.effectFrom ? QCoreApplication::translate("BaseEffect", text.c_str()) : shownFilterName(text));
    button->addBackImage(thumbnail);
    button->setController(&m_master);
    QObject::connect(button, &QAbstractButton::clicked, button, [this, button] { m_master.chooseFavourite(button); });
    m_strip.addItem(button, nullptr);
    button->addCloseBtn();
    return button;
}

void FavouritesStore::add(const QImage& thumbnail, const QString& toolTip, CIDictionary values)
{
    if (!toolTip.isEmpty())
        values["ToolTipName"] = toolTip.toStdString();
    Favourite& favourite = m_favourites.emplace_back();
    favourite.values = std::move(values);
    favourite.button = addButton(thumbnail, toolTip);
}

void FavouritesStore::add(const QImage& thumbnail, const BaseEffect& effect)
{
    add(thumbnail, QString::fromStdString(effect.tips()), CIDictionary());
    m_favourites.back().effect = effect.mycopy();
}

const Favourite* FavouritesStore::favouriteOf(const onlyTextClosedButton* button) const
{
    const auto found = std::find_if(m_favourites.begin(), m_favourites.end(),
        [&](const Favourite& favourite) { return favourite.button == button && favourite.hasClass(); });
    return button && found != m_favourites.end() ? &*found : nullptr;
}

bool FavouritesStore::contains(const onlyTextClosedButton* button) const
{
    return button && std::any_of(m_favourites.begin(), m_favourites.end(), [&](const Favourite& favourite) {
        return favourite.button == button;
    });
}

void FavouritesStore::remove(onlyTextClosedButton* button)
{
    if (!contains(button))
        return;
    std::erase_if(m_favourites, [&](const Favourite& favourite) { return favourite.button == button; });
    m_strip.removeItem(button);
}

void FavouritesStore::makeVisible(const onlyTextClosedButton* button)
{
    constexpr double kHalfAnItem = 17, kItem = 51; // points
    m_strip.adjustVisibility(int(((button->*m_family.place)() + kHalfAnItem) / kItem));
}

// --- saving and reading ---

bool FavouritesStore::save() const
{
    Archiver archiver(m_family.defaultsKey);
    StoredRecords records;
    for (const Favourite& favourite : m_favourites) {
        StoredRecord& record = records.emplace_back();
        for (const auto& [key, data] : favourite.unread)
            record[QString::fromStdString(key)] = data;
        for (const auto& [key, value] : favourite.values)
            if (!value.isNothing())
                archiver.add(record, QString::fromStdString(key), value);
        if (favourite.effect)
            archiver.add(record, kEffectKey, favourite.effect->save());
        const QByteArray thumbnail =
            favourite.button ? tiffOfThumbnail(favourite.button->getBackImage()) : QByteArray();
        if (!thumbnail.isEmpty())
            archiver.add(record, kThumbnailKey, dataOf(thumbnail));
    }
    const bool written =
        !archiver.hasFailed() && UserDefaults::standardUserDefaults().setRecordsForKey(records, m_family.defaultsKey);
    if (!written)
        qCWarning(lumivexLog, "The list %s can't be written.", qUtf8Printable(m_family.defaultsKey));
    return written;
}

void FavouritesStore::read()
{
    const std::optional<StoredRecords> records =
        UserDefaults::standardUserDefaults().recordsForKey(m_family.defaultsKey);
    if (!records)
        return;
    m_favourites.clear();
    m_strip.clear();
    for (const StoredRecord& record : *records)
        m_favourites.push_back(favouriteFrom(record));
}

Favourite FavouritesStore::favouriteFrom(const StoredRecord& record)
{
    Favourite favourite{settingsFrom(record, kThumbnailKey), nullptr, nullptr};
    QImage thumbnail;
    if (const auto found = record.find(kThumbnailKey); found != record.end())
        thumbnail = thumbnailOfTiff(bytesOf(unarchivedValue(found->second.bytes()).toData()));
    if (m_family.effectFrom) {
        const auto stored = favourite.values.find(kEffectKey.toStdString());
        if (stored != favourite.values.end())
            favourite.effect = m_family.effectFrom(stored->second.toDictionary());
        if (favourite.effect)
            favourite.values.erase(stored); // of an unknown class, it stays for the program that knows it
    }
    if (!thumbnail.isNull())
        favourite.button =
            addButton(thumbnail, QString::fromStdString(favourite.valueForKey(kToolTipKey.toStdString()).toString()));
    return favourite;
}
