// A canvas that shows the controller's picture, or what is made of it.
#pragma once

#include "widgets/CanvasMaster.h"
#include "widgets/ZoomedCanvas.h"

class QMimeData;

/// Tells its master of the zoom, pops up the master's menu, and takes a picture file that is dropped.
class ControlledCanvas : public ZoomedCanvas {
    Q_OBJECT
public:
    /// The line around what takes a dropped file.
    static void drawCGRect(QPainter& painter, const QRectF& rect);

protected:
    /// Which of the dragged files counts, empty for none, and whether it is wanted.
    struct Drops {
        QString (*file)(const QMimeData& data);
        bool (*isWanted)(const QString& path);
    };
    ControlledCanvas(CanvasScrollView* scrollView, const Drops& drops);
    /// Null for none. Lays the view out for its picture.
    void setMaster(CanvasMaster* master);

    CIPoint pictureSize() const override; // of the source picture
    void zoomedByWheel(float newZoom) override;
    void pinched(double delta) override;
    /// A file that would be taken has come over the view, or has gone.
    virtual void draggedOver(bool) { }
    /// What lies around the picture: constant and neutral, so that colors are judged rightly.
    QColor surround() const;

    void contextMenuEvent(QContextMenuEvent*) override;
    void dragEnterEvent(QDragEnterEvent*) override;
    void dragLeaveEvent(QDragLeaveEvent*) override;
    void dropEvent(QDropEvent*) override;

    bool dragEnter = false; // a file that would be taken is dragged over the view

private:
    void mouseContentMenu(const QPoint& globalPosition);
    void setDragEnter(bool over);

    const Drops m_drops;
    CanvasMaster* m_master = nullptr;
};
