// The finished picture on its way into a file of any format.
#pragma once

#include "app/document/LaterPicture.h"

#include <QCoreApplication>

class CIBitmap;
class Document;
class ExportPanel;
struct ExportSettings;
class QWidget;

/// Draws the picture, opens the panel for it, and writes what is chosen there beside the living window. Whatever goes
/// wrong, the panel stays, and files and document are as they were.
class Exporting {
    Q_DECLARE_TR_FUNCTIONS(Exporting)

public:
    /// `exported` is called when a file has been written.
    Exporting(Document& document, QWidget* window, FinishedPicture finished, std::function<void()> exported);

    void run();

private:
    void showPanel(const CIBitmap& picture);
    void write(ExportPanel& panel, const CIBitmap& picture, const QString& path, const ExportSettings& settings);
    void done(ExportPanel& panel, const QString& path);

    Document& m_document;
    QWidget* m_window;
    FinishedPicture m_finished;
    std::function<void()> m_exported;
};
