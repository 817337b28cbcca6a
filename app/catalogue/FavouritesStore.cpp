#include "app/catalogue/FavouritesStore.h"

#include "app/catalogue/FavouriteRecords.h"
#include "app/catalogue/Thumbnail.h"
#include "controls/panel/FilterNames.h"
#include "platform/chain/FilterChain.h"
#include "platform/foundation/Log.h"
#include "platform/foundation/UserDefaults.h"
#include "widgets/DocPageControl.h"
#include "widgets/FavouritesMaster.h"

#include <QUuid>

#include <algorithm>
#include <chrono>

namespace {

const QString kThumbnailKey = QStringLiteral("ButtonImage");
const QString kEffectKey = QStringLiteral("classObj");
const QString kToolTipKey = QStringLiteral("ToolTipName");
const std::string kClass = "class", kToolTip = kToolTipKey.toStdString();
constexpr std::chrono::milliseconds kDelay(500);

CIData dataOf(const QByteArray& bytes)
{
    const auto* first = reinterpret_cast<const std::byte*>(bytes.constData());
    return CIData(first, first + bytes.size());
}

QByteArray bytesOf(const CIData& data)
{
    return QByteArray(reinterpret_cast<const char*>(data.data()), qsizetype(data.size()));
}

/// Of a filter of that class, the image that is the picture whenever it is drawn.
std::string drawnOverKey(const std::string& className)
{
    const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(className);
    return filter ? pictureKey(*filter) : std::string();
}

} // namespace

FavouritesStore::FavouritesStore(FavouritesFamily family, DocPageControl& strip, FavouritesMaster& master)
    : m_family(std::move(family))
    , m_strip(strip)
    , m_master(master)
    , m_use(UserDefaults::standardUserDefaults().useRecordsForKey(m_family.defaultsKey))
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(kDelay);
    m_soon.callOnTimeout([this] { save(); });
    QObject::connect(&m_strip, &DocPageControl::itemMoved, &m_soon, [this] { takeOrder(); });
}

// --- adding, finding, changing, removing ---

QString FavouritesStore::shownName(const QString& toolTip) const
{
    const std::string text = toolTip.toStdString(); // stored in English
    return m_family.effectFrom ? QCoreApplication::translate("BaseEffect", text.c_str()) : shownFilterName(text);
}

onlyTextClosedButton* FavouritesStore::addButton(const QImage& thumbnail, const QString& toolTip)
{
    auto* button = new onlyTextClosedButton;
    button->setImages(QStringLiteral("off_button_50"), QStringLiteral("on_button_50"));
    button->setName(shownName(toolTip));
    button->addBackImage(thumbnail);
    button->setController(&m_master);
    QObject::connect(button, &QAbstractButton::clicked, button, [this, button] { m_master.chooseFavourite(button); });
    m_strip.addItem(button, nullptr);
    button->addCloseBtn();
    return button;
}

void FavouritesStore::change(Favourite& favourite)
{
    favourite.stored.clear();
    favourite.isChanged = true;
    m_soon.start();
}

void FavouritesStore::fill(Favourite& favourite, NewFavourite&& content)
{
    favourite.unread.clear();
    favourite.values = std::move(content.values);
    favourite.effect = std::move(content.effect);
    if (!content.toolTip.isEmpty())
        favourite.values[kToolTip] = content.toolTip.toStdString();
    change(favourite);
}

void FavouritesStore::add(NewFavourite added)
{
    Favourite& favourite = m_favourites.emplace_back();
    favourite.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    favourite.button = addButton(added.thumbnail, added.toolTip);
    fill(favourite, std::move(added));
}

void FavouritesStore::replace(const onlyTextClosedButton* button, NewFavourite replacement)
{
    Favourite* favourite = find(button);
    if (!favourite)
        return;
    const auto classOf = [](const std::shared_ptr<BaseEffect>& effect, const CIValue& name) {
        return effect ? effect->tips() : name.toString();
    };
    if (classOf(favourite->effect, favourite->valueForKey(kClass))
        == classOf(replacement.effect, replacement.values[kClass]))
        replacement.toolTip = QString::fromStdString(favourite->valueForKey(kToolTip).toString());
    favourite->button->setName(shownName(replacement.toolTip));
    favourite->button->addBackImage(replacement.thumbnail);
    fill(*favourite, std::move(replacement));
}

void FavouritesStore::rename(const onlyTextClosedButton* button, const QString& name)
{
    Favourite* favourite = find(button);
    if (!favourite || name.trimmed().isEmpty())
        return;
    favourite->values[kToolTip] = name.trimmed().toStdString();
    favourite->button->setName(name.trimmed());
    change(*favourite);
}

Favourite* FavouritesStore::find(const onlyTextClosedButton* button)
{
    const auto found = std::find_if(m_favourites.begin(), m_favourites.end(),
        [&](const Favourite& favourite) { return button && favourite.button == button; });
    return found == m_favourites.end() ? nullptr : &*found;
}

const Favourite* FavouritesStore::favouriteOf(const onlyTextClosedButton* button) const
{
    const auto found = std::find_if(m_favourites.begin(), m_favourites.end(),
        [&](const Favourite& favourite) { return favourite.button == button && favourite.hasClass(); });
    return button && found != m_favourites.end() ? &*found : nullptr;
}

bool FavouritesStore::contains(const onlyTextClosedButton* button) const
{
    return const_cast<FavouritesStore*>(this)->find(button);
}

void FavouritesStore::remove(onlyTextClosedButton* button)
{
    if (!contains(button))
        return;
    std::erase_if(m_favourites, [&](const Favourite& favourite) { return favourite.button == button; });
    m_strip.removeItem(button);
    m_soon.start();
}

void FavouritesStore::makeVisible(const onlyTextClosedButton* button)
{
    constexpr double kHalfAnItem = 17, kItem = 51; // points
    m_strip.adjustVisibility(int(((button->*m_family.place)() + kHalfAnItem) / kItem));
    m_strip.showItem(m_strip.indexOf(button));
}

/// The strip's. What has no button stays behind what was before it.
void FavouritesStore::takeOrder()
{
    std::vector<std::pair<int, Favourite>> placed;
    int place = -1;
    for (Favourite& favourite : m_favourites) {
        place = favourite.button ? m_strip.indexOf(favourite.button) : place;
        placed.emplace_back(place, std::move(favourite));
    }
    std::stable_sort(placed.begin(), placed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    for (std::size_t i = 0; i < placed.size(); ++i)
        m_favourites[i] = std::move(placed[i].second);
    m_isReordered = true;
    m_soon.start();
}

// --- saving and reading ---

bool FavouritesStore::archiveChanged()
{
    FavouriteArchiver archiver(m_family.defaultsKey);
    for (Favourite& favourite : m_favourites) {
        if (!favourite.stored.empty())
            continue;
        StoredRecord record;
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
        archiver.add(record, kFavouriteIdKey, favourite.id.toStdString());
        if (!archiver.hasFailed())
            favourite.stored = std::move(record);
    }
    return !archiver.hasFailed();
}

/// What other windows have stored, without what this one has removed, and with what it has added and changed.
StoredRecords FavouritesStore::merged(const std::optional<StoredRecords>& onDisk) const
{
    const StoredRecords records = onDisk.value_or(StoredRecords());
    const std::vector<QString> ids = favouriteIds(records);
    std::map<QString, std::size_t> mine;
    for (std::size_t i = 0; i < m_favourites.size(); ++i)
        mine[m_favourites[i].id] = i;

    std::vector<std::pair<std::size_t, StoredRecord>> placed;
    for (std::size_t i = 0; i < records.size(); ++i)
        if (const auto found = mine.find(ids[i]); found != mine.end()) {
            const Favourite& favourite = m_favourites[found->second];
            placed.emplace_back(found->second, favourite.isChanged ? favourite.stored : records[i]);
        } else if (!m_known.contains(ids[i])) {
            placed.emplace_back(m_favourites.size() + i, records[i]);
        }
    for (std::size_t i = 0; i < m_favourites.size(); ++i)
        // One that is neither stored nor changed has been removed by another window, unless there is no list at all.
        if (std::find(ids.begin(), ids.end(), m_favourites[i].id) == ids.end()
            && (m_favourites[i].isChanged || !onDisk))
            placed.emplace_back(i, m_favourites[i].stored);
    if (m_isReordered)
        std::stable_sort(placed.begin(), placed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    StoredRecords all;
    for (auto& [place, record] : placed)
        all.push_back(std::move(record));
    return all;
}

bool FavouritesStore::save()
{
    m_soon.stop();
    setDamagedListAside();
    const bool isWritten = archiveChanged()
        && UserDefaults::standardUserDefaults().changeRecordsForKey(
            m_family.defaultsKey, [this](const std::optional<StoredRecords>& onDisk) { return merged(onDisk); },
            *m_use);
    if (!isWritten) {
        qCWarning(lumivexLog, "The list %s can't be written.", qUtf8Printable(m_family.defaultsKey));
        m_master.tell(tr("The favourites can't be written to the disk."));
        return false;
    }
    m_known.clear();
    for (Favourite& favourite : m_favourites) {
        favourite.isChanged = false;
        m_known.insert(favourite.id);
    }
    m_isReordered = false;
    return true;
}

void FavouritesStore::setDamagedListAside()
{
    const QString aside = UserDefaults::standardUserDefaults().setDamagedRecordsAside(m_family.defaultsKey);
    if (!aside.isEmpty())
        m_master.tell(tr("A list of favourites is damaged. It is kept as %1.").arg(aside));
}

void FavouritesStore::read()
{
    setDamagedListAside();
    const std::optional<StoredRecords> records =
        UserDefaults::standardUserDefaults().recordsForKey(m_family.defaultsKey);
    if (!records)
        return;
    m_soon.stop();
    m_favourites.clear();
    m_known.clear();
    m_isReordered = false;
    m_strip.clear();
    const std::vector<QString> ids = favouriteIds(*records);
    for (std::size_t i = 0; i < records->size(); ++i) {
        m_favourites.push_back(favouriteFrom((*records)[i], ids[i]));
        m_known.insert(ids[i]);
    }
}

Favourite FavouritesStore::favouriteFrom(const StoredRecord& record, const QString& id)
{
    Favourite favourite{settingsFrom(record, kThumbnailKey), nullptr, nullptr, id, record};
    favourite.values.erase(kFavouriteIdKey.toStdString());
    QImage thumbnail;
    if (const auto found = record.find(kThumbnailKey); found != record.end()) {
        thumbnail = thumbnailOfTiff(bytesOf(unarchivedValue(found->second.bytes()).toData()));
        favourite.isChanged = thumbnail.isNull();
    }
    if (m_family.effectFrom) {
        const auto stored = favourite.values.find(kEffectKey.toStdString());
        if (stored != favourite.values.end())
            favourite.effect = m_family.effectFrom(stored->second.toDictionary());
        if (favourite.effect)
            favourite.values.erase(stored); // of an unknown class, it stays for the program that knows it
    } else {
        // Former versions stored the picture of the moment, too.
        const std::string drawnOver = drawnOverKey(favourite.valueForKey(kClass).toString());
        favourite.isChanged |= favourite.values.erase(drawnOver) + favourite.unread.erase(drawnOver) > 0;
    }
    if (favourite.isChanged)
        favourite.stored.clear();
    if (!thumbnail.isNull())
        favourite.button = addButton(thumbnail, QString::fromStdString(favourite.valueForKey(kToolTip).toString()));
    return favourite;
}
