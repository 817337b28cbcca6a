#include "app/document/Document.h"

#include "app/document/PictureOpening.h"
#include "files/PictureLimits.h"
#include "files/PictureMessages.h"
#include "platform/chain/Baking.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

Document::Document(QWidget* window)
    : m_window(window)
    , m_history(QStandardPaths::writableLocation(QStandardPaths::CacheLocation), physicalMemory() / 4)
    , m_context(std::make_shared<CIContext>())
{
}

Document::~Document() = default;

void Document::setState(State state)
{
    if (std::exchange(m_state, state) != state)
        emit stateChanged();
}

void Document::setPicture(const CIImage& picture)
{
    m_picture = picture;
    m_format = m_formats.formatOf(picture, m_format); // an edited picture is as deep as it was
    m_formats.remember(picture, m_format);
    if (m_state != State::Opening) // what stands in for a picture that is being read is nobody's work
        m_isFilesPicture = picture.node() == m_filesPicture.lock();
    emit pictureChanged();
}

void Document::setForeignPicture(const CIImage& picture)
{
    m_metadata = picture && picture.node() == m_lastRead.picture.lock() ? m_lastRead.metadata : nullptr;
    setPicture(picture);
}

void Document::replacePicture(const CIImage& picture, const QString& actionName)
{
    keepForUndo();
    m_undoManager.setActionName(actionName);
    setPicture(picture);
}

void Document::replaceByForeignPicture(const CIImage& picture)
{
    keepForUndo();
    setForeignPicture(picture);
}

void Document::keepForUndo()
{
    emit aboutToKeepPicture();
    m_undoManager.registerUndoWithTarget(this, [this, kept = m_history.keep(m_picture), metadata = m_metadata] {
        replaceByForeignPicture(restored(*kept));
        m_metadata = metadata;
    });
}

void Document::becomeFile(const QString& path, const CIImage& picture, const QString& actionName)
{
    keepFileForUndo(actionName);
    m_pictureFailure = m_readFailure;
    setFilePath(path);
    m_opened = picture ? m_history.keep(picture) : nullptr;
    m_filesPicture = picture.node();
    setForeignPicture(picture);
    setSaved();
}

void Document::keepFileForUndo(const QString& actionName)
{
    emit aboutToKeepPicture();
    m_undoManager.registerUndoWithTarget(this,
        [this, actionName, wasSaved = !isUnsaved(),
            state = FileState{m_history.keep(m_picture), m_format, m_metadata, m_pictureFailure, m_filePath, m_opened,
                m_filesPicture, m_hasEdits}] {
            keepFileForUndo(actionName);
            restore(state);
            if (wasSaved) // perhaps with an image of its own: the history keeps pixels
                setSaved();
        });
    m_undoManager.setActionName(actionName);
}

void Document::restore(const FileState& state)
{
    const CIImage image = restored(*state.picture);
    m_formats.remember(image, state.format);
    m_metadata = state.metadata;
    m_readFailure = m_pictureFailure = state.readFailure;
    m_opened = state.opened;
    m_filesPicture = state.filesPicture;
    m_hasEdits = state.hasEdits;
    setFilePath(state.path);
    setPicture(image);
    emit changedMarkChanged();
}

CIImage Document::restored(KeptPicture& kept)
{
    CIImage image = kept.image();
    if (const CIBitmap* bitmap = bitmapOf(image))
        m_formats.remember(image, m_formats.formatOf(image, bitmap->format()));
    return image;
}

CIImage Document::take(const PictureRead& read)
{
    m_readFailure = read.failure ? shownText(*read.failure) : QString();
    if (read.image)
        m_formats.remember(read.image, read.format);
    m_lastRead = {read.image.node(), read.metadata};
    return read.image;
}

void Document::setFilePath(const QString& path)
{
    m_filePath = path;
    if (!path.isEmpty())
        m_folder = QFileInfo(path).absolutePath();
    emit pathChanged();
}

void Document::setWasChanged(bool changed)
{
    m_wasChanged = changed;
    m_hasEdits = m_hasEdits || changed; // the mark goes before the file is written
    emit changedMarkChanged();
}

void Document::setUnsaved()
{
    if (std::exchange(m_hasEdits, true))
        return;
    emit changedMarkChanged();
}

void Document::setSaved()
{
    m_filesPicture = m_picture.node();
    m_isFilesPicture = true;
    m_hasEdits = false;
    emit changedMarkChanged();
}

void Document::startWork(
    const WorkOptions& options, BackgroundWork::Work work, std::function<void(bool isCancelled)> then)
{
    if (!isIdle())
        return;
    setState(State::Working);
    m_undoManager.keepStepOpen();
    m_work = std::make_unique<BackgroundWork>(
        m_window, options, std::move(work), [this, then = std::move(then)](bool isCancelled) {
            m_work.reset();
            setState(State::Idle);
            then(isCancelled);
            m_undoManager.closeStep();
            doWhatWaits();
        });
}

void Document::goInHistory(int moves)
{
    if (!isIdle() || moves == 0)
        return;
    if (moves < 0)
        m_undoManager.undo();
    else
        m_undoManager.redo();
    emit wentInHistory();
    whenIdle([this, rest = moves < 0 ? moves + 1 : moves - 1] { goInHistory(rest); });
}

void Document::whenIdle(std::function<void()> action)
{
    m_waiting.push_back(std::move(action));
    doWhatWaits();
}

void Document::doWhatWaits()
{
    while (isIdle() && !m_waiting.empty()) {
        const std::function<void()> action = std::move(m_waiting.front());
        m_waiting.erase(m_waiting.begin());
        action();
    }
}
