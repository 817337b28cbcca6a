// Quarter turns and mirror flips of the document.
#pragma once

#include <QCoreApplication>

#include <functional>

class CIImage;
class Document;

/// Turns the document's picture, as undo steps. Nothing without a picture.
class Turning {
    Q_DECLARE_TR_FUNCTIONS(Turning)

public:
    explicit Turning(Document& document)
        : m_document(document)
    {
    }
    void rotate(bool left);
    /// Its undo flips in the other direction, which leaves the picture turned by half a turn.
    void flip(bool vertical);

private:
    void turn(const QString& title, const std::function<CIImage(const CIImage&)>& way, const QString& actionName,
        std::function<void()> undo);

    Document& m_document;
};
