// The picture that is being edited, and all that is known about it.
#pragma once

#include "app/document/PictureHistory.h"
#include "platform/chain/PictureFormats.h"
#include "platform/coreimage/CIContext.h"
#include "platform/foundation/UndoManager.h"
#include "widgets/BackgroundWork.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <type_traits>
#include <vector>

class PictureMetadata;
struct PictureRead;

/// One per window, for as long as the program. Whether a command may run is asked of its state. Main thread.
class Document : public QObject {
    Q_OBJECT

public:
    /// While a file is being opened, and while work goes on beside the window, nothing can be edited.
    enum class State { Idle, Opening, Working };

    /// `window` is where the progress of long work is shown.
    explicit Document(QWidget* window);
    ~Document() override;

    State state() const { return m_state; }
    bool isIdle() const { return m_state == State::Idle; }
    void setState(State state);

    // --- the picture ---

    const CIImage& picture() const { return m_picture; }
    /// Null for none.
    void setPicture(const CIImage& picture);
    /// The same for a picture from elsewhere: it comes with what was read beside it, and without what was not.
    void setForeignPicture(const CIImage& picture);
    /// As an undo step, which has the name of what is done.
    void replacePicture(const CIImage& picture, const QString& actionName);
    /// The same for a picture from elsewhere; the step has no name yet.
    void replaceByForeignPicture(const CIImage& picture);
    /// Makes the present picture an undo step.
    void keepForUndo();
    /// The whole document becomes that of the file, null for one without a picture, as an undo step: what undoing
    /// brings back is all of the former document, its path and what of it was unsaved, too.
    void becomeFile(const QString& path, const CIImage& picture, const QString& actionName);
    /// The picture of the document's file as it was read, which may have to come back from the disk; null without one.
    CIImage openedPicture() const { return m_opened ? m_opened->image() : CIImage(); }
    bool hasOpened() const { return m_opened != nullptr; }
    void forgetOpened() { m_opened.reset(); }
    /// The picture for which another stood in is there again, just before the next one comes: nobody is told.
    void endStandIn(const CIImage& former) { m_picture = former; }

    /// How the picture's pixels are stored; results that replace the picture are stored alike.
    CIFormat format() const { return m_format; }
    void rememberFormat(const CIImage& image, CIFormat format) { m_formats.remember(image, format); }
    /// Of the file that the picture came from; null for a picture from elsewhere.
    const std::shared_ptr<const PictureMetadata>& metadata() const { return m_metadata; }
    void setMetadata(std::shared_ptr<const PictureMetadata> metadata) { m_metadata = std::move(metadata); }

    /// Remembers what was read with the image, or why there is none.
    CIImage take(const PictureRead& read);
    /// Why the last file could not be read, in the user's language; empty when it could.
    const QString& readFailure() const { return m_readFailure; }
    void clearReadFailure() { m_readFailure.clear(); }

    const QString& filePath() const { return m_filePath; } // empty for none
    void setFilePath(const QString& path);
    /// Where files were last chosen; empty at first.
    const QString& folder() const { return m_folder; }
    void setFolder(const QString& folder) { m_folder = folder; }
    bool wasChanged() const { return m_wasChanged; }
    void setWasChanged(bool changed);
    /// Whether something would be lost without the document. `wasChanged` knows neither turned, flipped and pasted
    /// pictures nor files that could not be written.
    bool isUnsaved() const { return m_hasEdits || !m_isFilesPicture; }
    /// What the title's mark says, and whether quitting asks.
    bool mayLoseWork() const { return m_wasChanged || isUnsaved(); }
    /// An edit that makes no picture of its own yet, or a file that could not be written.
    void setUnsaved();
    /// What there is now is in a file.
    void setSaved();

    UndoManager& undoManager() { return m_undoManager; }
    /// Pictures that undo steps go back to; beyond a quarter of the computer's memory they wait on the disk.
    PictureHistory& history() { return m_history; }
    const std::shared_ptr<CIContext>& context() const { return m_context; }

    // --- long work ---

    /// Calls `make(WorkControl&)` on another thread, and later `then(std::optional<result>, bool isCancelled)` on this
    /// one, without a result when there was no memory for it. The document is idle again by then. An undo that works
    /// so ends after `then`. Nothing happens unless the document is idle.
    template <class Make, class Then>
    void work(const WorkOptions& options, Make make, Then then)
    {
        const auto result = std::make_shared<std::optional<std::invoke_result_t<Make, WorkControl&>>>();
        startWork(
            options, [result, make = std::move(make)](WorkControl& control) { *result = make(control); },
            [result, then = std::move(then)](bool isCancelled) { then(std::move(*result), isCancelled); });
    }
    /// So many redos, or undos when negative; fewer when there are no more. Each may take time.
    void goInHistory(int moves);
    /// At once if the document is idle, or else as soon as it is, one after the other.
    void whenIdle(std::function<void()> action);

signals:
    void pictureChanged();
    void pathChanged();
    void changedMarkChanged();
    void stateChanged();
    void wentInHistory();
    /// An undo step is about to hold on to the present picture.
    void aboutToKeepPicture();
    /// To be shown to the user for a while.
    void message(const QString& text);

private:
    void startWork(const WorkOptions& options, BackgroundWork::Work work, std::function<void(bool isCancelled)> then);
    void doWhatWaits();
    CIImage restored(KeptPicture& kept);
    /// All of the document that belongs to its file.
    struct FileState {
        std::shared_ptr<KeptPicture> picture;
        CIFormat format;
        std::shared_ptr<const PictureMetadata> metadata;
        QString readFailure, path;
        std::shared_ptr<KeptPicture> opened;
        std::weak_ptr<const ci::Node> filesPicture;
        bool hasEdits;
    };
    void keepFileForUndo(const QString& actionName);
    void restore(const FileState& state);

    QWidget* m_window;
    PictureHistory m_history;
    UndoManager m_undoManager;
    std::shared_ptr<CIContext> m_context;
    State m_state = State::Idle;
    CIImage m_picture;
    PictureFormats m_formats;
    CIFormat m_format = CIFormat::RGBA8;
    std::shared_ptr<const PictureMetadata> m_metadata;
    struct {
        std::weak_ptr<const ci::Node> picture;
        std::shared_ptr<const PictureMetadata> metadata;
    } m_lastRead;
    QString m_readFailure, m_filePath, m_folder;
    QString m_pictureFailure; // why the document's own file could not be read
    std::shared_ptr<KeptPicture> m_opened; // null without a file
    bool m_wasChanged = false;
    std::weak_ptr<const ci::Node> m_filesPicture; // the picture when it was read or written last
    bool m_isFilesPicture = true, m_hasEdits = false;
    std::unique_ptr<BackgroundWork> m_work; // while it goes on
    std::vector<std::function<void()>> m_waiting;
};
