// The finished picture on its way into a file.
#pragma once

#include "app/document/LaterPicture.h"
#include "platform/imageio/Result.h"

#include <QCoreApplication>
#include <QPointer>

class CIBitmap;
class Document;
class QWidget;

/// Asks for name, format and resolution, and writes the file beside the living window.
class Saving {
    Q_DECLARE_TR_FUNCTIONS(Saving)

public:
    struct Listener {
        std::function<void()> saved; // a file has been written
        std::function<void()> impossible; // the document's file can't be written in its format; the user has been told
        std::function<void()> terminate; // the user wanted to save and quit, and has saved
    };

    Saving(Document& document, QWidget* window, FinishedPicture finished, Listener listener);

    /// Fills the menus that the panel shows below the files.
    void initExportFormats();
    /// To the document's file, or where the user wants.
    void save();
    void runPanel();
    void panelDidEnd(int returnCode, const QString& path);
    /// To the document's file, after a question. False when that can't be written to.
    bool saveExistFile();
    using Then = std::function<void(bool isStopped)>;
    /// `index` is that of the format. Always true; failures are logged.
    bool simplySave(int index, const QString& path, Then then = {});
    void createPDFFile(const QString& path, Then then = {});

    /// A finished save is to end the program.
    void saveAndQuit();
    bool isQuitting() const { return quitAfterSave; }

private:
    using Writer = std::function<Result<void>(const CIBitmap&, CIRenderControl&)>;

    bool asksToReplace();
    QString chosenFormat() const; // its export name
    Writer bitmapWriter(int index, const QString& path) const;
    Writer pdfWriter(const QString& path) const;
    void saveAs(const QString& path);
    void write(const QString& path, Writer writer, Then then);
    Then changesSaved(const QString& oldPath);
    void quitIfWanted();

    Document& m_document;
    QWidget* m_window;
    FinishedPicture m_finished;
    Listener m_listener;
    QPointer<QWidget> saveObjectOutlet; // the menus of the panel
    int format_type = 0; // of the last save
    bool quitAfterSave = false;
};
