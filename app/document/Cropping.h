// Cutting the picture and setting it upright.
#pragma once

#include <QCoreApplication>

#include <functional>
#include <optional>

class CIImage;
class Document;
class Overlay;
class QWidget;
struct CIRect;

/// Cuts and turns the document's picture, as undo steps. Nothing without a picture.
class Cropping {
    Q_DECLARE_TR_FUNCTIONS(Cropping)

public:
    /// The panels cover `page`. `panelChanged` is called when one has been opened or closed.
    Cropping(Document& document, QWidget* page, std::function<void()> panelChanged)
        : m_document(document)
        , m_page(page)
        , m_panelChanged(std::move(panelChanged))
    {
    }
    /// Ask in a panel, which stays open until it is answered or another picture comes.
    void askForCrop();
    void askForAngle();
    bool canAsk() const;

    /// `rect` has its origin in the picture's lower left corner; whole pixels inside the picture. They are copied.
    void crop(const CIRect& rect);
    /// By radians, counterclockwise about the middle. With `fills` the empty corners are cut off.
    void straighten(double angle, bool fills);

private:
    void show(Overlay& panel);
    void replace(const std::optional<CIImage>& made, bool isCancelled, const QString& actionName);

    Document& m_document;
    QWidget* m_page;
    std::function<void()> m_panelChanged;
};
