// What survives an unexpected end, and what other processes ask for.
#include "app/catalogue/OutlineView.h"
#include "app/Controller.h"
#include "app/document/SessionJournal.h"
#include "app/modes/InputValues.h"
#include "app/window/MainWindow.h"
#include "effects2d/CustomEffects.h"
#include "platform/foundation/Log.h"
#include "platform/imageio/PictureMetadata.h"
#include "ui_MainWindow.h"
#include "widgets/AlertPanel.h"
#include "widgets/BackgroundWork.h"
#include "widgets/GradientButton.h"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSessionManager>

namespace {

const std::string kPicture = "picture", kInput = "input:"; // followed by the input's key
constexpr int kPanelTag = 111;

CIValue valueOf(const SessionState& state, const char* key)
{
    const auto found = state.values.find(key);
    return found == state.values.end() ? CIValue() : found->second;
}

CIDictionary dictionaryOf(const SessionState& state, const char* key)
{
    const CIValue value = valueOf(state, key);
    return value.isDictionary() ? value.toDictionary() : CIDictionary();
}

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
    if (currentFilter) {
        CIDictionary inputs;
        for (const std::string& key : currentFilter->inputKeys()) {
            const CIInputAttributes* input = currentFilter->attributesForKey(key);
            if (!input || !isUsersInput(*currentFilter, *input))
                continue;
            const CIValue value = currentFilter->valueForKey(key);
            if (const CIImage image = value.toImage(); image) {
                if (image.node() != picture.node() && !image.extent().isInfinite())
                    state.pictures[kInput + key] = image;
            } else if (!value.isNothing() && !value.isImage()) {
                inputs[key] = value;
            }
        }
        state.values["filter"] = currentFilter->name();
        state.values["inputs"] = inputs;
    }
    if (current3DEffect)
        state.values["effect3D"] = current3DEffect->save();
    if (currentCustomEffect)
        state.values["effectCustom"] = currentCustomEffect->save();
    return state;
}

void Controller::restoreFilter(const SessionState& state)
{
    const QString name = QString::fromStdString(valueOf(state, "filter").toString());
    clearControls();
    currentFilter.reset();
    if (name.isEmpty())
        return;
    addFilterIndex(name, kPanelTag);
    if (!currentFilter)
        return;
    const CIDictionary inputs = dictionaryOf(state, "inputs");
    for (const std::string& key : currentFilter->inputKeys()) {
        if (const auto stored = inputs.find(key); stored != inputs.end())
            currentFilter->setValueForKey(stored->second, key);
        if (const auto stored = state.pictures.find(kInput + key); stored != state.pictures.end())
            currentFilter->setValueForKey(stored->second, key);
    }
    const QScopedValueRollback ours(m_selectionIsOurs, true);
    m_chosenRow = m_dataSource.rowForClass(name);
    listView->selectItem(m_chosenRow);
    updateLayout(); // the rows were made for the filter's own values
}

void Controller::restoreSession(const SessionState& state)
{
    const auto picture = state.pictures.find(kPicture);
    const CIImage image = picture == state.pictures.end() ? CIImage() : picture->second;
    const int format = int(valueOf(state, "format").toDouble());
    if (image && format >= 0 && format <= int(CIFormat::RGBAf))
        m_document.rememberFormat(image, CIFormat(format));
    m_document.clearReadFailure();
    setFilePath(QString::fromStdString(valueOf(state, "path").toString()));
    setBackgroundImage(image);
    const std::string described = valueOf(state, "metadataOf").toString();
    m_document.setMetadata(described.empty() ? nullptr : PictureMetadata::ofFile(described));
    const std::array<GradientButton*, 3> buttons{standardBtn, threeDBtn, customBtn};
    const auto mode = std::size_t(std::clamp(valueOf(state, "mode").toDouble(), 0.0, 2.0));
    changeFilterMode(buttons[mode]);
    restoreFilter(state);
    setCurrent3DEffect(customEffectFromDictionary(m_effects3D.prototypes(), dictionaryOf(state, "effect3D")));
    setCurrentCustomEffect(
        customEffectFromDictionary(m_effectsCustom.prototypes(), dictionaryOf(state, "effectCustom")));
    m_undoManager.removeAllActions();
    m_document.setWasChanged(valueOf(state, "wasChanged").toBool());
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
    const QString name = QFileInfo(QString::fromStdString(valueOf(state, "path").toString())).fileName();
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
