// Pictures from and to other programs.
#pragma once

#include "app/document/LaterPicture.h"

#include <QCoreApplication>

class Document;

/// Copies the finished picture, and pastes in the document's place.
class Clipboard {
    Q_DECLARE_TR_FUNCTIONS(Clipboard)

public:
    Clipboard(Document& document, FinishedPicture finished)
        : m_document(document)
        , m_finished(std::move(finished))
    {
    }
    void copy();
    /// As an undo step. What can't be read gives no picture.
    void paste();

private:
    Document& m_document;
    FinishedPicture m_finished;
};
