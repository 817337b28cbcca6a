#include "app/document/Session.h"

#include "app/document/Document.h"
#include "app/document/Opening.h"
#include "app/document/ReplacedFiles.h"
#include "app/document/SessionJournal.h"
#include "platform/foundation/Log.h"
#include "platform/imageio/reader_process/ReaderProcess.h"
#include "widgets/AlertPanel.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>

namespace {

const std::string kPicture = "picture";

} // namespace

Session::Session(Document& document, Opening& opening, QWidget* window, Edits edits)
    : m_document(document)
    , m_opening(opening)
    , m_window(window)
    , m_edits(std::move(edits))
{
}

Session::~Session() = default;

// --- what there is ---

SessionState Session::state()
{
    SessionState state;
    state.values = {{"path", m_document.filePath().toStdString()}, {"wasChanged", m_document.wasChanged()},
        {"unsaved", m_document.isUnsaved()}, {"format", double(m_document.format())}};
    if (m_document.metadata())
        state.values["metadataOf"] = m_document.metadata()->file().string();
    const CIImage picture = m_opening.lastingPicture();
    if (picture && !picture.extent().isInfinite())
        state.pictures[kPicture] = picture;
    m_edits.save(state, picture);
    return state;
}

void Session::restore(const SessionState& state)
{
    const auto picture = state.pictures.find(kPicture);
    const CIImage image = picture == state.pictures.end() ? CIImage() : picture->second;
    const int format = int(state.value("format").toDouble());
    if (image && format >= 0 && format <= int(CIFormat::RGBAf))
        m_document.rememberFormat(image, CIFormat(format));
    m_document.clearReadFailure();
    m_document.forgetOpened();
    m_document.setFilePath(QString::fromStdString(state.value("path").toString()));
    m_document.setPicture(image);
    const std::string described = state.value("metadataOf").toString();
    m_document.setMetadata(described.empty() ? nullptr : ReaderProcess(described).readMetadata());
    m_edits.restore(state);
    m_document.undoManager().removeAllActions();
    m_document.setSaved();
    m_document.setWasChanged(state.value("wasChanged").toBool());
    if (state.value("unsaved").toBool())
        m_document.setUnsaved();
}

// --- unexpected ends ---

void Session::startJournal(const QString& home)
{
    forgetReplacedFiles(home);
    m_journal = std::make_unique<SessionJournal>(home, [this] { return state(); });
}

void Session::markClean()
{
    m_document.setSaved();
    if (m_journal)
        m_journal->markClean();
}

void Session::keepNow()
{
    if (m_journal)
        m_journal->update(true);
}

void Session::end()
{
    if (m_journal)
        m_journal->remove();
}

/// A box of its own: alerts of the program keep the titles of their buttons.
bool Session::asksToRestore(const CIDictionary& values)
{
    const QString name =
        QFileInfo(QString::fromStdString(SessionState{values, {}}.value("path").toString())).fileName();
    QMessageBox box(QMessageBox::NoIcon, QStringLiteral("Lumivex"),
        name.isEmpty() ? tr("Lumivex ended unexpectedly. Restore the picture?")
                       : tr("Lumivex ended unexpectedly. Restore “%1”?").arg(name),
        QMessageBox::NoButton, m_window);
    box.setObjectName(QStringLiteral("RestoreSheet"));
    constexpr int kIcon = 64; // points, as in the program's alerts
    box.setIconPixmap(QIcon(QStringLiteral(":/icons/io.github.lumivex.Lumivex.svg"))
                          .pixmap(QSize(kIcon, kIcon), box.devicePixelRatioF()));
    box.setWindowModality(Qt::WindowModal);
    box.setInformativeText(tr("The picture comes back with its filter, as it was at most a minute before."));
    QPushButton* restore = box.addButton(tr("Restore"), QMessageBox::AcceptRole);
    restore->setToolTip(tr("Goes on where the work ended"));
    box.addButton(tr("Discard"), QMessageBox::DestructiveRole)->setToolTip(tr("Forgets the changes for good"));
    box.setDefaultButton(restore);
    box.exec();
    return box.clickedButton() == restore;
}

void Session::offerRestore(const QString& home)
{
    std::vector<std::unique_ptr<SessionFolder>> found = SessionFolder::abandoned(home);
    offer(std::make_shared<std::vector<FolderPtr>>(
        std::make_move_iterator(found.begin()), std::make_move_iterator(found.end())));
}

/// One after the other, until one is restored.
void Session::offer(const FoldersPtr& folders)
{
    while (!folders->empty()) {
        const FolderPtr folder = std::move(folders->front());
        folders->erase(folders->begin());
        const std::optional<CIDictionary> values = folder->values();
        if (!values)
            continue;
        if (!asksToRestore(*values)) {
            folder->remove();
            continue;
        }
        m_document.whenIdle([this, folders, folder] { read(folder, folders); });
        return;
    }
}

void Session::read(const FolderPtr& folder, const FoldersPtr& others)
{
    m_document.work(
        {.title = tr("Restoring the picture…")}, [folder](WorkControl&) { return folder->read(); },
        [this, folder, others](const std::optional<std::optional<SessionState>>& state, bool) {
            if (!state || !*state) {
                emit m_document.message(tr("The picture can't be restored; its journal is damaged."));
                offer(others);
                return;
            }
            const QString opened = m_document.filePath();
            restore(**state);
            if (m_journal)
                m_journal->adopt(folder);
            const bool hasMore = !others->empty();
            others->clear(); // for the next window to find
            if (hasMore || !opened.isEmpty())
                openInNewWindow(opened);
        });
}

// --- other processes ---

void Session::openFilesFromOutside(const QStringList& paths)
{
    if (paths.isEmpty())
        return;
    if (m_document.state() == Document::State::Working || QApplication::activeModalWidget())
        openInNewWindow(paths.first());
    else if (!m_document.mayLoseWork()
        || AlertPanel::Alert_OKCancelMsgText(m_window,
               tr("Do you want to open “%1” here?").arg(QFileInfo(paths.first()).fileName()),
               tr("Your changes will be lost if you did not save them."))
            == 1)
        m_opening.open(paths.first());
    for (const QString& path : paths.mid(1))
        openInNewWindow(path);
}

void Session::openInNewWindow(const QString& path)
{
    QStringList arguments{QStringLiteral("--new-window")};
    if (!path.isEmpty())
        arguments << QStringLiteral("--") << path;
    if (!QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments))
        qCWarning(lumivexLog, "No new window can be opened.");
}
