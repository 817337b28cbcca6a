// What survives an unexpected end, and what other processes ask for.
#include "app/Controller.h"
#include "app/document/SessionJournal.h"
#include "app/window/MainWindow.h"
#include "platform/foundation/Log.h"
#include "platform/imageio/PictureMetadata.h"
#include "ui_MainWindow.h"
#include "widgets/AlertPanel.h"
#include "widgets/BackgroundWork.h"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QSessionManager>

namespace {

const std::string kPicture = "picture";

} // namespace

// --- what there is ---

SessionState Controller::sessionState()
{
    SessionState state;
    state.values = {{"path", m_document.filePath().toStdString()}, {"mode", double(filerMode())},
        {"wasChanged", m_document.wasChanged()}, {"format", double(m_document.format())}};
    if (m_document.metadata())
        state.values["metadataOf"] = m_document.metadata()->file().string();
    const CIImage picture = lastingPicture();
    if (picture && !picture.extent().isInfinite())
        state.pictures[kPicture] = picture;
    for (const Mode* mode : m_modes.modes())
        mode->save(state, picture);
    return state;
}

void Controller::restoreSession(const SessionState& state)
{
    const auto picture = state.pictures.find(kPicture);
    const CIImage image = picture == state.pictures.end() ? CIImage() : picture->second;
    const int format = int(state.value("format").toDouble());
    if (image && format >= 0 && format <= int(CIFormat::RGBAf))
        m_document.rememberFormat(image, CIFormat(format));
    m_document.clearReadFailure();
    setFilePath(QString::fromStdString(state.value("path").toString()));
    setBackgroundImage(image);
    const std::string described = state.value("metadataOf").toString();
    m_document.setMetadata(described.empty() ? nullptr : PictureMetadata::ofFile(described));
    m_modes.selectMenuMode(1 + int(std::clamp(state.value("mode").toDouble(), 0.0, 2.0)));
    for (Mode* mode : m_modes.modes())
        mode->restore(state);
    m_undoManager.removeAllActions();
    m_document.setWasChanged(state.value("wasChanged").toBool());
    adjustViewsAndTabs();
    updateView();
    updateMainBtnState();
    validateMenuItems();
}

// --- unexpected ends ---

void Controller::startJournal(const QString& home)
{
    m_journal = std::make_unique<SessionJournal>(home, [this] { return sessionState(); });
}

void Controller::markSessionClean()
{
    if (m_journal)
        m_journal->markClean();
}

/// A box of its own: alerts of the program keep the titles of their buttons.
bool Controller::asksToRestore(const SessionState& state)
{
    const QString name = QFileInfo(QString::fromStdString(state.value("path").toString())).fileName();
    QMessageBox box(QMessageBox::NoIcon, QStringLiteral("Lumivex"),
        name.isEmpty() ? tr("Lumivex ended unexpectedly. Restore the picture?")
                       : tr("Lumivex ended unexpectedly. Restore “%1”?").arg(name),
        QMessageBox::NoButton, &m_window);
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

void Controller::offerRestore(const QString& home)
{
    std::vector<std::unique_ptr<SessionFolder>> sessions = SessionFolder::abandoned(home);
    while (!sessions.empty()) {
        std::unique_ptr<SessionFolder> session = std::move(sessions.front());
        sessions.erase(sessions.begin());
        const std::optional<CIDictionary> values = session->values();
        if (!values)
            continue;
        if (!asksToRestore({*values, {}})) {
            session->remove();
            continue;
        }
        std::optional<SessionState> state;
        WorkControl control(1);
        workInBackground(&m_window, tr("Restoring the picture…"), control, [&] { state = session->read(); });
        if (!state) {
            showMessage(tr("The picture can't be restored; its journal is damaged."));
            continue;
        }
        const QString opened = isOpening() ? openingPath() : m_document.filePath();
        cancelOpening();
        restoreSession(*state);
        if (m_journal)
            m_journal->adopt(std::move(session));
        const bool hasMore = !sessions.empty();
        sessions.clear(); // for the next window to find
        if (hasMore || !opened.isEmpty())
            openInNewWindow(opened);
    }
}

/// The desktop's session ends: the same question as when the window closes.
void Controller::commitData(QSessionManager& session)
{
    if (!m_document.wasChanged())
        return;
    if (!session.allowsInteraction()) {
        if (m_journal)
            m_journal->update(true); // nobody can be asked: the next start does it
        return;
    }
    if (applicationShouldTerminate() == TerminateReply::Cancel)
        session.cancel();
    else
        markSessionClean();
    session.release();
}

// --- other processes ---

void Controller::openFilesFromOutside(const QStringList& paths)
{
    if (paths.isEmpty())
        return;
    if (isWorkRunning() || QApplication::activeModalWidget())
        openInNewWindow(paths.first());
    else if (!m_document.wasChanged()
        || AlertPanel::Alert_OKCancelMsgText(&m_window,
               tr("Do you want to open “%1” here?").arg(QFileInfo(paths.first()).fileName()),
               tr("Your changes will be lost if you did not save them."))
            == 1)
        openFile(paths.first());
    for (const QString& path : paths.mid(1))
        openInNewWindow(path);
}

void Controller::openInNewWindow(const QString& path)
{
    QStringList arguments{QStringLiteral("--new-window")};
    if (!path.isEmpty())
        arguments << QStringLiteral("--") << path;
    if (!QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments))
        qCWarning(lumivexLog, "No new window can be opened.");
}
