// Other sizes of pictures.
#pragma once

#include <QCoreApplication>

class Document;
class QWidget;

/// Resizes the document's picture, as an undo step. Nothing without a picture.
class Resizing {
    Q_DECLARE_TR_FUNCTIONS(Resizing)

public:
    /// `window` is where the user is told what is impossible.
    Resizing(Document& document, QWidget* window)
        : m_document(document)
        , m_window(window)
    {
    }
    /// In px, rounded to whole ones; tells the user when there is no room for so many.
    void resize(float width, float height);

private:
    Document& m_document;
    QWidget* m_window;
};
