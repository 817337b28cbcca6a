// The picture as large as there is room for it.
#pragma once

#include "platform/coreimage/CIImage.h"

#include <QImage>
#include <QWidget>

/// Shows a picture that has an end. Picture pixels have their origin in its lower left corner, y up.
class PictureCanvas : public QWidget {
    Q_OBJECT

public:
    PictureCanvas(const CIImage& picture, QWidget* parent);

    CIPoint pictureSize() const { return m_size; }
    CIPoint toPicture(const QPointF& widget) const;
    QPointF toWidget(CIPoint picture) const;

protected:
    /// What is to fit into the canvas, about the picture's middle; picture pixels.
    virtual CIPoint shownSize() const { return m_size; }
    double scale() const; // points per picture pixel
    QRectF frameOf(const CIRect& picture) const; // widget
    /// Around the painter's origin, which stands for the picture's middle, and turned with it.
    void drawPicture(QPainter& painter);
    /// Dims what isn't kept.
    void shadeAround(QPainter& painter, const QRectF& kept) const;

private:
    CIImage m_picture;
    CIPoint m_size;
    QImage m_preview; // as large as it is shown
    double m_previewScale = 0; // px per picture pixel
};

/// Lines that are seen on any picture, parting the frame in equal parts.
void drawGrid(QPainter& painter, const QRectF& frame, int columns, int rows);
