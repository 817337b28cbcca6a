// Picture files on their way into the document.
#pragma once

#include "platform/coreimage/CIImage.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

class Document;
class QFileDialog;
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
    /// The same for a file that doesn't become the document's.
    void runSecondPanel(QWidget& window, std::function<void(const QString&)> take);
    void panelDidEnd(int returnCode, const QStringList& files);
    static QStringList nameFilters();

    /// The whole document becomes that of the file as an undo step, also when there is no picture in it.
    void open(const QString& path);
    /// The same for what the program starts with: there is nothing to go back to.
    void openFirst(const QString& path);
    /// The same as `open`. What can't be read replaces nothing, and is told, if it `mustBePicture`.
    void openDropped(const QString& path, bool mustBePicture);
    /// The document's file as it is on the disk, as an undo step. Nothing without a file.
    void revert();
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
    /// Undoing the opening is the only way back to what was not saved.
    void unsavedReplaced();
    void newWindowWanted(const QString& path);

private:
    /// What is to become of the file.
    struct Order {
        QString path, actionName;
        int reducedSide = 0; // px; 0 for no picture that stands in for a slow one
        bool mustBePicture = true, isFirst = false;
    };
    struct Job;

    QFileDialog* newPanel(QWidget& window, const QString& title);
    void addNewWindowButton(QFileDialog& panel);
    void start(const Order& order);
    void take(const Order& order, const CIImage& image);
    void showStandIn(const CIImage& picture);
    void end(const PictureRead& read);
    std::unique_ptr<Job> takeJob();

    Document& m_document;
    std::function<int()> m_reducedSide;
    std::unique_ptr<Job> m_job; // null when nothing is being opened
};
