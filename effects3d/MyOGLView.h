// The view that shows a 3D effect.
#pragma once

#include "effects3d/OGLViewMaster.h"
#include "widgets/AccessibleCanvas.h"

#include <QImage>
#include <QWidget>

#include <memory>

class OpenGLDevice;
class OpenGLFrame;
class PictureTexture;

/// Shows what the current 3D effect draws, or the plain picture without one, and reads it back. The mouse turns the
/// effect, and so do the arrow keys (with Shift in larger steps).
///
/// Effects see a space whose unit is half the view's shorter side, wherever the view is longer than wide or the other
/// way round; what has the least z is in front. The plain picture fills nine tenths of the view.
/// Points given to effects are view coordinates: y up, the origin in the lower left corner.
class MyOGLView : public QWidget, public AccessibleCanvas {
    Q_OBJECT
public:
    explicit MyOGLView(QWidget* parent = nullptr);
    ~MyOGLView() override;

    /// Prepares the view, the first time.
    void awakeFromNib();
    void setController(OGLViewMaster* master);

    /// False when this machine can't draw in 3D. Looks for OpenGL, the first time.
    bool isUsable();
    /// Another effect, a changed effect or another picture: draws anew.
    void redraw();

    /// The view as it is now at the screen's resolution, upright, with transparency where nothing is. Null when it
    /// can't be drawn.
    QImage ogl_shot();
    /// The same at one pixel a point, its lower left corner at the origin.
    CIImage ogl_shot_CI();
    /// The same in so many pixels, which are as wide to high as the view. Drawn in tiles where it is larger than
    /// OpenGL's frames.
    CIImage shotOfSize(QSize pixels);

    /// One frame of that many pixels. Lines are `scale` pixels wide.
    QImage drawnFrame(QSize pixels, qreal scale);

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void enterEvent(QEnterEvent*) override;
    void leaveEvent(QEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void keyReleaseEvent(QKeyEvent*) override;
    void focusInEvent(QFocusEvent*) override;
    void focusOutEvent(QFocusEvent*) override;
    void contextMenuEvent(QContextMenuEvent*) override;

private:
    BaseEffect* effect() const;
    CIPoint viewPoint(const QMouseEvent& event) const;
    QSize pixelsAt(qreal scale) const;
    /// The part of a frame of `pixels` that starts `tile` pixels from its lower left corner.
    QImage drawnTile(QSize pixels, const QRect& tile, qreal scale);
    void drawEffect(BaseEffect& effect, QSize pixels, const QRect& tile);
    void drawBackImg(QSize pixels, const QRect& tile);
    void drawShown();
    void endTurn();
    void endKeyTurn();
    void drawHint(QPainter&) const;
    void mouseContentMenu(const QPoint& globalPosition);
    void mouseEntered();
    void mouseExited();

    bool m_inited = false;
    OGLViewMaster* controller = nullptr;
    std::shared_ptr<OpenGLDevice> m_device; // null until somebody asks for a frame
    std::unique_ptr<OpenGLFrame> m_frame;
    std::shared_ptr<PictureTexture> m_picture; // kept while effects let go of it and take it again
    QImage m_shown; // the last frame; null when it must be drawn anew
    bool m_isSlow = false; // a frame at the screen's resolution takes too long to follow the mouse
    bool m_isBlank = false; // nothing is to be seen in it
    bool m_showsFocus = false;
    bool m_mouseTurns = false;
    bool m_keysTurn = false; // an arrow key is held down
    CIPoint m_keyPoint; // where the keys have taken the mouse
};
