// The view that shows a generated effect.
#pragma once

#include "effects2d/CustomViewMaster.h"
#include "platform/quartz/Drawing.h"
#include "widgets/CanvasScrollView.h"
#include "widgets/ControlledCanvas.h"

/// Shows the current effect, or the plain picture without one, at the screen's resolution. The mouse places the anchor
/// of effects that have one; the arrow keys move it by one picture pixel, with Shift by ten.
class customEffImageView : public ControlledCanvas {
    Q_OBJECT
public:
    explicit customEffImageView(CanvasScrollView* scrollView);

    /// Prepares the view, the first time.
    void awakeFromNib();
    void setController(CustomViewMaster* master);

    /// Another effect, a new layer or a new picture: draws all anew.
    void redraw();
    bool drawsCursor() const { return drawCursor; }

protected:
    CIPoint pictureSize() const override;
    void pressed(CIPoint point) override;
    void dragged(CIPoint point) override;
    void released(CIPoint point) override;
    Qt::CursorShape pointer() const override { return drawCursor ? Qt::PointingHandCursor : Qt::ArrowCursor; }

    void paintEvent(QPaintEvent*) override;
    bool event(QEvent*) override;
    void enterEvent(QEnterEvent*) override;
    void leaveEvent(QEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    BaseEffect* effect() const;
    bool isMousing() const;
    void mouseEntered();
    void mouseExited();
    quartz::Part visiblePart() const;
    void drawPicture(QPainter&);
    void drawMarker(QPainter&) const;

    CustomViewMaster* controller = nullptr;
    bool m_inited = false;
    QImage cursorImg; // the cross hair
    bool drawCursor = false; // the pointer is over the view and the effect takes the mouse

    CIPoint m_laidOutSize; // picture pixels that the layout was made for
    struct {
        CIImage picture;
        quartz::Part part;
        QImage pixels;
    } m_plain; // the picture without an effect, as shown last
};

/// The scroll view around it.
class CustomEffectsScrollView : public CanvasScrollView {
    Q_OBJECT
public:
    explicit CustomEffectsScrollView(QWidget* parent = nullptr);
    customEffImageView* imageView() const { return m_view; }

private:
    customEffImageView* m_view;
};
