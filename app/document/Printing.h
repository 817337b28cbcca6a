// The finished picture on paper.
#pragma once

#include "app/document/LaterPicture.h"

#include <QCoreApplication>

class Document;
class QImage;
class QPrinter;
class QWidget;

/// Draws the picture, opens the print panel for it, and prints it as large as the paper allows.
class Printing {
    Q_DECLARE_TR_FUNCTIONS(Printing)

public:
    Printing(Document& document, QWidget* window, FinishedPicture finished)
        : m_document(document)
        , m_window(window)
        , m_finished(std::move(finished))
    {
    }
    void run();

private:
    void showPanel(const QImage& picture);
    void print(QPrinter& printer, const QImage& picture);

    Document& m_document;
    QWidget* m_window;
    FinishedPicture m_finished;
};
