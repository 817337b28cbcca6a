// Picture files on their way into the document.
#pragma once

#include "platform/coreimage/CIImage.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class Document;
class QWidget;
struct PictureRead;

/// Reads one file in the background. Until the picture is there, path and title stay those of the former one. Nothing
/// can be edited meanwhile, and a newer opening takes the place of this one. Main thread.
class Opening : public QObject {
    Q_OBJECT

public:
    /// `reducedSide` tells how large a picture that stands in for a slow one need be, in px.
    Opening(Document& document, std::function<int()> reducedSide);
    ~Opening() override;

    /// Asks for a file, in a panel on the window.
    void runPanel(QWidget& window);
    void panelDidEnd(int returnCode, const QStringList& files);
    static QStringList nameFilters();

    /// The whole document becomes that of the file, also when there is no picture in it.
    void open(const QString& path);
    /// As an undo step. What can't be read replaces nothing, and is told, if it `mustBePicture`.
    void openDropped(const QString& path, bool mustBePicture);
    /// Leaves everything as it was before.
    void cancel();

    /// True once it takes so long that the user is told.
    bool isShown() const;
    QString path() const; // empty when nothing is being opened
    double progress() const; // 0 to 1; 0 also when nobody can tell
    /// What stays if the opening is cancelled.
    CIImage lastingPicture() const;

signals:
    void shown();
    /// A reduced picture is about to stand in for the new one.
    void standInComes();
    /// The document is idle again. Nothing of the former picture is lost unless something has been `opened`.
    void cancelled();
    void finished();
    /// What is in the document is what is in its file.
    void opened();
    void notRead(const QString& path);

private:
    using Take = std::function<void(const CIImage&)>;
    struct Job;

    void start(const QString& path, int reducedSide, Take take);
    void showStandIn(const CIImage& picture);
    void end(const PictureRead& read);
    std::unique_ptr<Job> takeJob();

    Document& m_document;
    std::function<int()> m_reducedSide;
    std::unique_ptr<Job> m_job; // null when nothing is being opened
};
