// The finished picture on its way to another program, by the mouse.
#pragma once

#include "app/document/LaterPicture.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <optional>

class Document;
class QMimeData;
class QWidget;

/// Writes the picture into a file of the format that was last exported to, with that format's settings, and lets the
/// mouse carry it. The files are kept as long as the window.
class DraggingOut {
    Q_DECLARE_TR_FUNCTIONS(DraggingOut)

public:
    DraggingOut(Document& document, QWidget* source, FinishedPicture finished);
    void start();

    /// What carries the file; takes the data over.
    std::function<void(QMimeData* data)> carry;

private:
    QString freshPath(const QString& name);

    Document& m_document;
    FinishedPicture m_finished;
    std::optional<QTemporaryDir> m_folder; // made when it is first needed
    int m_count = 0;
};
