#include "app/document/SessionFolder.h"

#include "platform/chain/Baking.h"
#include "platform/foundation/KeyedArchive.h"
#include "platform/foundation/Log.h"
#include "platform/foundation/PackedBitmap.h"
#include "platform/imageio/PictureReader.h"

#include <QCryptographicHash>
#include <QDir>
#include <QSaveFile>
#include <QUuid>

#include <algorithm>
#include <new>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

const QString kPrefix = QStringLiteral("session-"), kDamaged = QStringLiteral("damaged-");
const QString kLockFile = QStringLiteral("lock"), kStateFile = QStringLiteral("state");
constexpr int kVersion = 1;
constexpr qint64 kMostState = 64 << 20; // bytes; more is no state of ours
constexpr auto kHash = QCryptographicHash::Blake2b_256;

/// New names in a folder are on the disk only after this.
void syncFolder(const QString& folder)
{
    const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    static_cast<void>(::fsync(descriptor));
    ::close(descriptor);
}

bool writeWhole(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

/// The bytes behind their checksum; nothing when they don't fit together.
std::optional<QByteArray> checked(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMostState)
        return {};
    const QByteArray all = file.readAll();
    const int length = QCryptographicHash::hashLength(kHash);
    const QByteArray content = all.mid(length);
    if (all.size() <= length || QCryptographicHash::hash(content, kHash) != all.left(length))
        return {};
    return content;
}

CIDictionary dictionaryOf(const CIDictionary& parent, const char* key)
{
    const auto found = parent.find(key);
    return found != parent.end() && found->second.isDictionary() ? found->second.toDictionary() : CIDictionary();
}

std::optional<CIDictionary> storedState(const QString& folder)
{
    const std::optional<QByteArray> bytes = checked(folder + QLatin1Char('/') + kStateFile);
    if (!bytes)
        return {};
    try {
        const CIValue value = KeyedArchive::unarchivedValue(*bytes);
        if (!value.isDictionary())
            return {};
        const CIDictionary state = value.toDictionary();
        const auto version = state.find("version");
        if (version == state.end() || version->second.toDouble() != kVersion)
            return {};
        return state;
    } catch (const std::exception& error) {
        qCWarning(lumivexLog, "%s", error.what());
        return {};
    }
}

} // namespace

CIValue SessionState::value(const std::string& key) const
{
    const auto found = values.find(key);
    return found == values.end() ? CIValue() : found->second;
}

CIDictionary SessionState::dictionary(const std::string& key) const { return value(key).toDictionary(); }

QString SessionFolder::stateHome()
{
    const QString set = qEnvironmentVariable("XDG_STATE_HOME");
    // As the convention has it, a relative path counts for nothing.
    const QString home = QDir::isAbsolutePath(set) ? set : QDir::homePath() + QStringLiteral("/.local/state");
    return home + QStringLiteral("/lumivex");
}

SessionFolder::SessionFolder(QString path, int lock)
    : m_path(std::move(path))
    , m_lock(lock)
{
}

SessionFolder::~SessionFolder() { ::close(m_lock); }

std::unique_ptr<SessionFolder> SessionFolder::lock(const QString& path)
{
    const QByteArray file = QFile::encodeName(path + QLatin1Char('/') + kLockFile);
    const int descriptor = ::open(file.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (descriptor < 0)
        return nullptr;
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        ::close(descriptor);
        return nullptr;
    }
    return std::unique_ptr<SessionFolder>(new SessionFolder(path, descriptor));
}

std::unique_ptr<SessionFolder> SessionFolder::make(const QString& home)
{
    // Locked under a name that nobody looks for.
    const QString name = QUuid::createUuid().toString(QUuid::Id128);
    const QString hidden = home + QStringLiteral("/.") + name, path = home + QLatin1Char('/') + kPrefix + name;
    QDir().mkpath(hidden);
    QFile::setPermissions(hidden, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    std::unique_ptr<SessionFolder> folder = lock(hidden);
    if (!folder || !QDir().rename(hidden, path)) {
        qCWarning(lumivexLog, "Nothing can be kept in %s.", qUtf8Printable(home));
        QDir(hidden).removeRecursively();
        return nullptr;
    }
    folder->m_path = path;
    return folder;
}

std::vector<std::unique_ptr<SessionFolder>> SessionFolder::abandoned(const QString& home)
{
    std::vector<std::unique_ptr<SessionFolder>> found;
    const QStringList names = QDir(home).entryList({kPrefix + QLatin1Char('*')}, QDir::Dirs);
    for (const QString& name : names) {
        std::unique_ptr<SessionFolder> folder = lock(home + QLatin1Char('/') + name);
        if (!folder)
            continue; // its session goes on
        if (!QFile::exists(folder->m_path + QLatin1Char('/') + kStateFile))
            folder->remove();
        else if (!folder->values())
            folder->setAside();
        else
            found.push_back(std::move(folder));
    }
    std::sort(
        found.begin(), found.end(), [](const auto& a, const auto& b) { return a->lastWritten() > b->lastWritten(); });
    return found;
}

QDateTime SessionFolder::lastWritten() const
{
    return QFileInfo(m_path + QLatin1Char('/') + kStateFile).lastModified();
}

void SessionFolder::setAside()
{
    const QFileInfo here(m_path);
    const QString aside = here.path() + QLatin1Char('/') + kDamaged + here.fileName().mid(kPrefix.size());
    qCWarning(lumivexLog, "The journal of a session is damaged; it is kept as %s.", qUtf8Printable(aside));
    QDir().rename(m_path, aside);
}

void SessionFolder::remove() { QDir(m_path).removeRecursively(); }

/// The name of the file in which the picture is, written if need be; empty when that fails.
QString SessionFolder::fileOf(const CIImage& image, const std::atomic<bool>& stop)
{
    for (const KnownPicture& known : m_known)
        if (known.node.lock() == image.node())
            return known.file;
    const CIBitmap bitmap = renderedBitmap(CIContext(), image, CIFormat::RGBA16); // bitmaps as they are
    const QString name = QStringLiteral("picture-%1").arg(m_nextPicture++);
    QSaveFile file(m_path + QLatin1Char('/') + name);
    if (!file.open(QIODevice::WriteOnly) || !packBitmap(bitmap, file, &stop) || !file.commit())
        return {};
    m_known.push_back({image.node(), name});
    return name;
}

bool SessionFolder::write(const SessionState& state, const std::atomic<bool>& stop)
try {
    CIDictionary pictures;
    std::vector<KnownPicture> used;
    for (const auto& [key, image] : state.pictures) {
        const QString name = fileOf(image, stop);
        if (name.isEmpty()) {
            if (!stop)
                qCWarning(lumivexLog, "A picture can't be kept in %s.", qUtf8Printable(m_path));
            return false;
        }
        pictures[key] = name.toStdString();
        used.push_back({image.node(), name});
    }
    const QByteArray bytes = KeyedArchive::archivedData(
        CIDictionary{{"version", kVersion}, {"values", state.values}, {"pictures", pictures}});
    syncFolder(m_path); // what the state names is there before it
    if (stop || !writeWhole(m_path + QLatin1Char('/') + kStateFile, QCryptographicHash::hash(bytes, kHash) + bytes)) {
        if (!stop)
            qCWarning(lumivexLog, "The session can't be kept in %s.", qUtf8Printable(m_path));
        return false;
    }
    syncFolder(m_path);
    m_known = std::move(used);
    const QStringList files = QDir(m_path).entryList({QStringLiteral("picture-*")}, QDir::Files);
    for (const QString& file : files)
        if (std::none_of(m_known.begin(), m_known.end(), [&](const KnownPicture& known) { return known.file == file; }))
            QFile::remove(m_path + QLatin1Char('/') + file);
    return true;
} catch (const std::exception& error) { // no memory, a value that can't be archived
    qCWarning(lumivexLog, "The session can't be kept: %s", error.what());
    return false;
}

std::optional<CIDictionary> SessionFolder::values() const
{
    const std::optional<CIDictionary> state = storedState(m_path);
    return state ? std::optional(dictionaryOf(*state, "values")) : std::nullopt;
}

std::optional<SessionState> SessionFolder::read()
try {
    const std::optional<CIDictionary> stored = storedState(m_path);
    if (!stored)
        return {};
    SessionState state{dictionaryOf(*stored, "values"), {}};
    const CIDictionary pictures = dictionaryOf(*stored, "pictures");
    std::vector<KnownPicture> known;
    for (const auto& [key, name] : pictures) {
        const QString fileName = QFileInfo(QString::fromStdString(name.toString())).fileName();
        QFile file(m_path + QLatin1Char('/') + fileName);
        const CIBitmap bitmap =
            file.open(QIODevice::ReadOnly) ? unpackBitmap(file, ReadOptions().maxPixels) : CIBitmap();
        if (bitmap.isNull()) {
            setAside();
            return {};
        }
        const CIImage image = CIImage::fromBitmap(bitmap);
        state.pictures[key] = image;
        known.push_back({image.node(), fileName});
        m_nextPicture = std::max(m_nextPicture, fileName.section(QLatin1Char('-'), -1).toInt() + 1);
    }
    m_known = std::move(known);
    return state;
} catch (const std::bad_alloc&) {
    qCWarning(lumivexLog, "There is not enough memory for the former session."); // it stays where it is
    return {};
}
